// Serial devices by Qt, on Unix.
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>

#include <QFileInfo>
#include <QHash>
#include <QSerialPort>

#include "platform/failure.h"
#include "window/qt_text.h"
#include "window/serial_line.h"

namespace quilla {
namespace {

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

/// What Qt does not tell of a port is asked of the operating system.
class QtSerialLine : public SerialLine {
 public:
  QtSerialLine(const QString& device, const std::string& settings) : port_(device) {
    Apply(settings, port_);
    if (!port_.open(QIODevice::ReadWrite)) throw Failure(ReasonOf(port_));
    port_.clear(QSerialPort::Input);
  }

  void SetDtr(bool on) override { port_.setDataTerminalReady(on); }
  void SetRts(bool on) override { port_.setRequestToSend(on); }

  void Send(const std::string& bytes) override {
    port_.write(bytes.data(), static_cast<qint64>(bytes.size()));
    HandToDriver();
  }

  void HandToDriver() override {
    qint64 before = 0;
    do {
      before = port_.bytesToWrite();
      if (before > 0 && DriverHasRoom()) port_.flush();  // one piece at a time
    } while (port_.bytesToWrite() < before);
  }

  void WaitForRoom() override { port_.waitForBytesWritten(1); }

  std::size_t BytesInQueue() const override {
    return static_cast<std::size_t>(port_.bytesToWrite());
  }

  std::size_t BytesInDriver() const override {
    int bytes = 0;
    return ioctl(handle(), TIOCOUTQ, &bytes) == 0 ? static_cast<std::size_t>(bytes) : 0;
  }

  void Drain() override { tcdrain(handle()); }
  void Discard() override { port_.clear(QSerialPort::Output); }
  std::string TakeArrived() override { return port_.readAll().toStdString(); }

  // Qt does not notice a line that is cut where reading just gives nothing.
  bool HasGone() const override {
    pollfd line{handle(), 0, 0};
    return poll(&line, 1, 0) > 0 || port_.error() == QSerialPort::ResourceError;
  }

 private:
  // Qt tells a write without room like a device that has gone.
  bool DriverHasRoom() const {
    pollfd line{handle(), POLLOUT, 0};
    return poll(&line, 1, 0) > 0;
  }
  int handle() const { return port_.handle(); }

  QSerialPort port_;
};

}  // namespace

std::unique_ptr<SerialLine> OpenSerialLine(const QString& device, const std::string& settings,
                                           const std::function<void()>& /*turn*/) {
  return std::make_unique<QtSerialLine>(device, settings);
}

}  // namespace quilla
