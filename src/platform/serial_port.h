// The serial port: the operating system's side as an abstract class, and the one port object of
// the system with its settings.
#ifndef QUILLA_PLATFORM_SERIAL_PORT_H_
#define QUILLA_PLATFORM_SERIAL_PORT_H_

#include <cstddef>
#include <string>

namespace quilla {

class SerialPort {
 public:
  virtual ~SerialPort() = default;
  /// Opens port `number` (1 to 4) with settings such as "2400,N,8,1" (baud rate, parity, data
  /// bits, stop bits). Fails with `kPortMissing` or `kPortInUse`.
  virtual void Open(int number, const std::string& settings) = 0;
  /// Closes the port; bytes that are still queued are sent first. Nothing on a closed port.
  virtual void Close() = 0;
  virtual bool IsOpen() const = 0;
  /// Set the line signals; nothing on a closed port or a device without modem lines.
  virtual void SetDtr(bool on) = 0;
  virtual void SetRts(bool on) = 0;
  /// Queues bytes and returns. Fails with `kPortFailed` when they find no room or the port is shut.
  virtual void Write(const std::string& bytes) = 0;
  /// Takes all bytes that have arrived, at once. Fails with `kPortFailed` on a closed port.
  virtual std::string Read() = 0;
};

class MSComm {
 public:
  explicit MSComm(SerialPort& port) : port_(port) {}

  /// Used by the next opening.
  int CommPort = 1;
  std::string Settings;
  /// The most bytes that one read gives; 0 for no limit.
  std::size_t InputLen = 0;

  bool PortOpen() const { return port_.IsOpen(); }
  /// Fails with `kPortInUse` when it is open already, and as SerialPort::Open does.
  void SetPortOpen(bool open);
  void SetDTREnable(bool on) { port_.SetDtr(on); }
  void SetRTSEnable(bool on) { port_.SetRts(on); }
  void Output(const std::string& bytes) { port_.Write(bytes); }
  /// Takes what has arrived, up to InputLen bytes of it. Fails as SerialPort::Read does.
  std::string Input();

 private:
  SerialPort& port_;
  std::string arrived_;  // what the last reads have left
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_SERIAL_PORT_H_
