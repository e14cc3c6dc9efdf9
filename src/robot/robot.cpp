#include "robot/robot.h"

#include <string>
#include <utility>

namespace quilla::robot {
namespace {

constexpr int kSplashMilliseconds = 20;

/// The program has ended. It is no std::exception: it passes every handler that waits.
struct ProgramEnded {};
/// The play has been ended from outside. It is no std::exception either.
struct EndedFromOutside {};

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
  } catch (const EndedFromOutside&) {
    if (quilla_.panel() != nullptr) quilla_.panel()->rescue().Write();
  } catch (const NotACommand& fault) {
    errors_ << "line " << line_number_ << ": " << fault.reason() << '\n';
    return kNoCommand;
  }
  return kPlayed;
}

void Robot::EndIfAsked() const {
  if (must_end && must_end()) throw EndedFromOutside{};
}

bool Robot::PlayNextCommand() {
  EndIfAsked();
  while (line_.empty()) {
    std::string line;
    const bool is_there = static_cast<bool>(std::getline(script_, line));
    EndIfAsked();
    if (!is_there) return false;
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

int RunScript(std::istream& script, std::ostream& transcript, std::ostream& errors,
              std::function<bool()> must_end) {
  Robot robot(script, transcript, errors);
  robot.must_end = std::move(must_end);
  return robot.Play();
}

}  // namespace quilla::robot
