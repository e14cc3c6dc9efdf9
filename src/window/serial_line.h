// An open serial device, as the operating system has it.
#ifndef QUILLA_WINDOW_SERIAL_LINE_H_
#define QUILLA_WINDOW_SERIAL_LINE_H_

#include <QString>
#include <functional>
#include <memory>
#include <string>

namespace quilla {

/// Nothing but `Drain` blocks. What is sent waits in a queue until the driver has room for it.
class SerialLine {
 public:
  SerialLine() = default;
  SerialLine(const SerialLine&) = delete;
  SerialLine& operator=(const SerialLine&) = delete;
  /// Closes the device; what waits is lost.
  virtual ~SerialLine() = default;

  virtual void SetDtr(bool on) = 0;
  virtual void SetRts(bool on) = 0;
  /// Adds bytes to the queue, and hands to the driver what it has room for.
  virtual void Send(const std::string& bytes) = 0;
  /// Hands to the driver what it has room for by now.
  virtual void HandToDriver() = 0;
  /// Waits for room in the driver, a millisecond at most.
  virtual void WaitForRoom() = 0;
  virtual std::size_t BytesInQueue() const = 0;
  /// The bytes that the driver has taken and not yet sent, as far as it tells; 0 where it does not.
  virtual std::size_t BytesInDriver() const = 0;
  /// Waits until the last bit is on the line. It blocks, so it is for a thread of its own.
  virtual void Drain() = 0;
  /// Forgets what is not sent yet.
  virtual void Discard() = 0;
  /// Takes all that has arrived.
  virtual std::string TakeArrived() = 0;
  /// Whether the device was pulled out, or who holds the other end of a pseudo-terminal has gone.
  virtual bool HasGone() const = 0;
};

/// Opens a device, "COM3" or "/dev/ttyS2", for one user alone, with settings such as "2400,N,8,1"
/// and no handshake. Calls `turn`, which waits a moment, until a slow device is open. Fails with
/// `kPortMissing`, `kPortInUse` or `kPortFailed`.
std::unique_ptr<SerialLine> OpenSerialLine(const QString& device, const std::string& settings,
                                           const std::function<void()>& turn);

}  // namespace quilla

#endif  // QUILLA_WINDOW_SERIAL_LINE_H_
