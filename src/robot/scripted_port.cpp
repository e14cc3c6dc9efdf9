#include "robot/scripted_port.h"

#include <utility>

#include "platform/failure.h"
#include "robot/words.h"

namespace quilla::robot {

std::optional<PortState> PortStateNamed(std::string_view name) {
  if (name == "present") return PortState::kPresent;
  if (name == "missing") return PortState::kMissing;
  if (name == "busy") return PortState::kBusy;
  if (name == "broken") return PortState::kBroken;
  return std::nullopt;
}

void ScriptedPort::Feed(std::string_view bytes) {
  if (IsOpen()) arrived_ += bytes;
}

void ScriptedPort::Open(int number, const std::string& settings) {
  if (number < 1 || number > kPorts || StateOf(number) == PortState::kMissing) {
    throw Failure(ErrorNumber::kPortMissing);
  }
  if (StateOf(number) == PortState::kBusy) throw Failure(ErrorNumber::kPortInUse);
  open_ = number;
  arrived_.clear();
  transcript_ << "port open " << number << ' ' << Quoted(settings) << '\n';
}

void ScriptedPort::Close() {
  if (!IsOpen()) return;
  open_ = kNone;
  transcript_ << "port close\n";
}

void ScriptedPort::SetLine(std::string_view line, bool on) {
  if (IsOpen()) transcript_ << line << ' ' << (on ? 1 : 0) << '\n';
}

void ScriptedPort::CheckTransfer() {
  if (!IsOpen() || StateOf(open_) == PortState::kBroken) throw Failure(ErrorNumber::kPortFailed);
}

void ScriptedPort::Write(const std::string& bytes) {
  CheckTransfer();
  transcript_ << "sent " << Quoted(bytes) << '\n';
}

std::string ScriptedPort::Read() {
  CheckTransfer();
  return std::exchange(arrived_, {});
}

}  // namespace quilla::robot
