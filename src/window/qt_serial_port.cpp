#include "window/qt_serial_port.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <algorithm>
#include <utility>

#include "platform/failure.h"

namespace quilla {
namespace {

constexpr std::size_t kQueueBytes = 512;
/// How long a write waits for room. A reader at full speed makes some within that; a line at 2400
/// baud carries less than the shortest record.
constexpr qint64 kPatienceMs = 40;

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
    QString device = prefix + QString::number(number - 1);
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
  std::unique_ptr<SerialLine> line = OpenSerialLine(device, settings, turn_);
  // A handler that ran meanwhile may have been first.
  if (IsOpen()) throw Failure(ErrorNumber::kPortInUse);
  line_ = std::move(line);
  device_ = device;
}

void QtSerialPort::Close() {
  if (!IsOpen()) return;
  closing_.push_back(std::make_unique<ClosingPort>(std::move(line_), device_));
}

void QtSerialPort::SetDtr(bool on) {
  if (IsOpen()) line_->SetDtr(on);
}

void QtSerialPort::SetRts(bool on) {
  if (IsOpen()) line_->SetRts(on);
}

void QtSerialPort::Write(const std::string& bytes) {
  if (!IsOpen()) throw Failure(ErrorNumber::kPortFailed);
  line_->Send(bytes);
  QElapsedTimer waiting;
  waiting.start();
  const auto is_stuck = [&] { return line_->BytesInQueue() > kQueueBytes; };
  while (is_stuck() && !line_->HasGone() && !waiting.hasExpired(kPatienceMs)) {
    line_->WaitForRoom();
  }
  if (is_stuck() || line_->HasGone()) throw Failure(ErrorNumber::kPortFailed);
}

std::string QtSerialPort::Read() {
  if (!IsOpen()) throw Failure(ErrorNumber::kPortFailed);
  std::string bytes = line_->TakeArrived();
  if (bytes.empty() && line_->HasGone()) throw Failure(ErrorNumber::kPortFailed);
  return bytes;
}

}  // namespace quilla
