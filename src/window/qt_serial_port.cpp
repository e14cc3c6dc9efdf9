#include "window/qt_serial_port.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QHash>
#include <algorithm>
#include <utility>

#include "platform/failure.h"
#include "window/qt_text.h"
#include "window/serial_driver.h"

namespace quilla {
namespace {

constexpr qint64 kQueueBytes = 512;
/// How long a write waits for room. A reader at full speed makes some within that; a line at 2400
/// baud carries less than the shortest record.
constexpr qint64 kPatienceMs = 40;

/// Takes over settings such as "2400,N,8,1".
void Apply(const std::string& settings, QSerialPort& port) {
  static const QHash<QString, QSerialPort::Parity> kParities = {{"N", QSerialPort::NoParity},
                                                                {"E", QSerialPort::EvenParity},
                                                                {"O", QSerialPort::OddParity},
                                                                {"M", QSerialPort::MarkParity},
                                                                {"S", QSerialPort::SpaceParity}};
  static const QHash<QString, QSerialPort::StopBits> kStopBits = {
      {"1", QSerialPort::OneStop},
      {"1.5", QSerialPort::OneAndHalfStop},
      {"2", QSerialPort::TwoStop}};
  const QStringList fields = ToQt(settings).split(',');
  port.setBaudRate(fields.value(0).toInt());
  port.setParity(kParities.value(fields.value(1)));
  port.setDataBits(static_cast<QSerialPort::DataBits>(fields.value(2).toInt()));
  port.setStopBits(kStopBits.value(fields.value(3)));
  port.setFlowControl(QSerialPort::NoFlowControl);
}

/// Why a port did not open. The library tells a device that somebody holds, or has put a lock file
/// on, like one that the user may not use.
ErrorNumber ReasonOf(const QSerialPort& port) {
  if (port.error() == QSerialPort::DeviceNotFoundError) return ErrorNumber::kPortMissing;
  if (port.error() != QSerialPort::PermissionError) return ErrorNumber::kPortFailed;
  const QFileInfo device(port.portName());
  const bool forbidden = device.exists() && !(device.isReadable() && device.isWritable());
  return forbidden ? ErrorNumber::kPortFailed : ErrorNumber::kPortInUse;
}

}  // namespace

QtSerialPort::QtSerialPort(std::function<void()> turn, QStringList prefixes)
    : turn_(std::move(turn)), prefixes_(std::move(prefixes)) {}

QtSerialPort::~QtSerialPort() {
  Close();
  const auto is_sending = [](const auto& port) { return !port->is_closed(); };
  while (std::any_of(closing_.begin(), closing_.end(), is_sending)) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

QString QtSerialPort::DeviceOf(int number) const {
#ifdef Q_OS_WIN
  return "COM" + QString::number(number);
#else
  for (const QString& prefix : prefixes_) {
    const QString device = prefix + QString::number(number - 1);
    if (QFileInfo::exists(device)) return device;
  }
  throw Failure(ErrorNumber::kPortMissing);
#endif
}

bool QtSerialPort::IsSending(const QString& device) {
  std::erase_if(closing_, [](const auto& port) { return port->is_closed(); });
  return std::any_of(closing_.begin(), closing_.end(),
                     [&](const auto& port) { return port->device() == device; });
}

void QtSerialPort::Open(int number, const std::string& settings) {
  const QString device = DeviceOf(number);
  while (IsSending(device)) turn_();
  // A handler that ran meanwhile may have been first.
  if (IsOpen()) throw Failure(ErrorNumber::kPortInUse);
  auto port = std::make_unique<QSerialPort>(device);
  Apply(settings, *port);
  if (!port->open(QIODevice::ReadWrite)) throw Failure(ReasonOf(*port));
  port->clear(QSerialPort::Input);
  port_ = std::move(port);
}

void QtSerialPort::Close() {
  if (!IsOpen()) return;
  closing_.push_back(std::make_unique<ClosingPort>(std::move(port_)));
}

void QtSerialPort::SetDtr(bool on) {
  if (IsOpen()) port_->setDataTerminalReady(on);
}

void QtSerialPort::SetRts(bool on) {
  if (IsOpen()) port_->setRequestToSend(on);
}

void QtSerialPort::Write(const std::string& bytes) {
  if (!IsOpen()) throw Failure(ErrorNumber::kPortFailed);
  port_->write(bytes.data(), static_cast<qint64>(bytes.size()));
  HandToDriver(*port_);
  QElapsedTimer waiting;
  waiting.start();
  const auto is_stuck = [&] { return port_->bytesToWrite() > kQueueBytes; };
  while (is_stuck() && !DeviceHasGone(*port_) && !waiting.hasExpired(kPatienceMs)) {
    port_->waitForBytesWritten(1);
  }
  if (is_stuck() || DeviceHasGone(*port_)) throw Failure(ErrorNumber::kPortFailed);
}

std::string QtSerialPort::Read() {
  if (!IsOpen()) throw Failure(ErrorNumber::kPortFailed);
  const QByteArray bytes = port_->readAll();
  if (bytes.isEmpty() && DeviceHasGone(*port_)) throw Failure(ErrorNumber::kPortFailed);
  return bytes.toStdString();
}

}  // namespace quilla
