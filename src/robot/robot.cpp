#include "robot/robot.h"

#include <string>
#include <utility>

namespace quilla::robot {
namespace {

constexpr int kSplashMilliseconds = 20;

/// The program has ended. It is no std::exception: it passes every handler that waits.
struct ProgramEnded {};

}  // namespace

Robot::Robot(std::istream& script, std::ostream& transcript, std::ostream& errors,
             const HandsFactory& make_hands)
    : script_(script),
      transcript_(transcript),
      errors_(errors),
      outside_(transcript),
      quilla_(outside_.ports),
      hands_(make_hands(quilla_, outside_.event_loop)),
      commands_(transcript, outside_, quilla_, *hands_) {
  outside_.event_loop.play_command = [this] { return PlayNextCommand(); };
}

int Robot::Play() {
  try {
    quilla_.Start();
    outside_.clock.Pass(kSplashMilliseconds);
    commands_.Begin();
    while (PlayNextCommand()) {
    }
  } catch (const ScriptOver&) {
  } catch (const ProgramEnded&) {
    transcript_ << "ended\n";
  } catch (const NotACommand& fault) {
    errors_ << "line " << line_number_ << ": " << fault.reason() << '\n';
    return kNoCommand;
  }
  return kPlayed;
}

bool Robot::PlayNextCommand() {
  while (line_.empty()) {
    std::string line;
    if (!std::getline(script_, line)) return false;
    ++line_number_;
    if (line.ends_with('\r')) line.pop_back();
    if (line.empty() || line.front() == '#') continue;
    transcript_ << "> " << line << '\n';
    line_ = CommandsOf(line);
  }
  Words command = std::move(line_.front());
  line_.pop_front();
  commands_.Run(std::move(command));
  if (outside_.event_loop.ended()) throw ProgramEnded{};
  return true;
}

int RunScript(std::istream& script, std::ostream& transcript, std::ostream& errors) {
  return Robot(script, transcript, errors).Play();
}

}  // namespace quilla::robot
