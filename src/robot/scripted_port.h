// Serial ports that behave as the script says, and write down what was done to them.
#ifndef QUILLA_ROBOT_SCRIPTED_PORT_H_
#define QUILLA_ROBOT_SCRIPTED_PORT_H_

#include <array>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "platform/serial_port.h"

namespace quilla::robot {

enum class PortState {
  kPresent,
  kMissing,
  kBusy,
  kBroken,  // opens, then refuses every write and read
};

/// The state of that name: "present", "missing", "busy" or "broken"; nothing for another name.
std::optional<PortState> PortStateNamed(std::string_view name);

class ScriptedPort : public SerialPort {
 public:
  static constexpr int kPorts = 4;

  explicit ScriptedPort(std::ostream& transcript) : transcript_(transcript) {}

  /// Sets the state of port `number`, 1 to kPorts.
  void SetState(int number, PortState state) { StateOf(number) = state; }
  /// Bytes arrive at the port that is open; without one they are lost.
  void Feed(std::string_view bytes);

  void Open(int number, const std::string& settings) override;
  void Close() override;
  bool IsOpen() const override { return open_ != kNone; }
  void SetDtr(bool on) override { SetLine("dtr", on); }
  void SetRts(bool on) override { SetLine("rts", on); }
  void Write(const std::string& bytes) override;
  std::string Read() override;

 private:
  static constexpr int kNone = 0;

  PortState& StateOf(int number) { return states_.at(static_cast<std::size_t>(number - 1)); }
  void SetLine(std::string_view line, bool on);
  /// Fails with `kPortFailed` unless an open port takes and gives bytes.
  void CheckTransfer();

  std::ostream& transcript_;
  std::array<PortState, kPorts> states_{};
  int open_ = kNone;
  std::string arrived_;
};

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_SCRIPTED_PORT_H_
