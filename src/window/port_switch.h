// The serial port of the program. It leads to that of the machine, or to another that somebody puts
// in its place: a demonstration must not send to a real board.
#ifndef QUILLA_WINDOW_PORT_SWITCH_H_
#define QUILLA_WINDOW_PORT_SWITCH_H_

#include <memory>
#include <string>
#include <utility>

#include "platform/serial_port.h"

namespace quilla {

class PortSwitch : public SerialPort {
 public:
  explicit PortSwitch(SerialPort& machine) : machine_(machine) {}

  /// The next opening is that of `other`; of the machine's port again with null. A port that is
  /// open stays in use until it is closed.
  void LeadTo(std::shared_ptr<SerialPort> other) { next_ = std::move(other); }

  void Open(int number, const std::string& settings) override {
    if (!IsOpen()) other_ = next_;
    Port().Open(number, settings);
  }
  void Close() override { Port().Close(); }
  bool IsOpen() const override { return Port().IsOpen(); }
  void SetDtr(bool on) override { Port().SetDtr(on); }
  void SetRts(bool on) override { Port().SetRts(on); }
  void Write(const std::string& bytes) override { Port().Write(bytes); }
  std::string Read() override { return Port().Read(); }

 private:
  SerialPort& Port() const { return other_ != nullptr ? *other_ : machine_; }

  SerialPort& machine_;
  std::shared_ptr<SerialPort> next_;
  std::shared_ptr<SerialPort> other_;  // in use, unless null
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_PORT_SWITCH_H_
