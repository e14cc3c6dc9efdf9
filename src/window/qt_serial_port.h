// The serial ports of the desktop.
#ifndef QUILLA_WINDOW_QT_SERIAL_PORT_H_
#define QUILLA_WINDOW_QT_SERIAL_PORT_H_

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/serial_port.h"
#include "window/closing_port.h"
#include "window/serial_line.h"

namespace quilla {

/// Port 1 is the device with number 0 behind the first of some prefixes under which there is one;
/// on Windows it is COM1. A write goes to the driver as far as that takes it, the rest into a queue
/// of 512 bytes. A port that is closed sends on in the background what it was given: opening it
/// again waits for that, and so does the destructor.
class QtSerialPort final : public SerialPort {
 public:
  /// `turn` lets waiting events be handled, and waits a moment for one.
  explicit QtSerialPort(std::function<void()> turn,
                        QStringList prefixes = {"/dev/ttyS", "/dev/ttyUSB", "/dev/ttyACM"});
  QtSerialPort(const QtSerialPort&) = delete;
  QtSerialPort& operator=(const QtSerialPort&) = delete;
  ~QtSerialPort() override;

  void Open(int number, const std::string& settings) override;
  void Close() override;
  bool IsOpen() const override { return line_ != nullptr; }
  void SetDtr(bool on) override;
  void SetRts(bool on) override;
  void Write(const std::string& bytes) override;
  /// A device that has gone first gives what it had sent.
  std::string Read() override;

 private:
  QString DeviceOf(int number) const;
  /// True while a port that was closed still sends.
  bool IsSending(const QString& device);

  std::function<void()> turn_;
  QStringList prefixes_;
  std::unique_ptr<SerialLine> line_;
  QString device_;  // of the open line
  std::vector<std::unique_ptr<ClosingPort>> closing_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_QT_SERIAL_PORT_H_
