#include "robot/robot.h"

#include <string>

#include "robot/words.h"

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
  outside_.event_loop.play_line = [this] { return PlayNextLine(); };
}

int Robot::Play() {
  try {
    quilla_.Start();
    outside_.clock.Pass(kSplashMilliseconds);
    while (PlayNextLine()) {
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

bool Robot::PlayNextLine() {
  std::string line;
  do {
    if (!std::getline(script_, line)) return false;
    ++line_number_;
    if (line.ends_with('\r')) line.pop_back();
  } while (line.empty() || line.front() == '#');
  transcript_ << "> " << line << '\n';
  commands_.Run(line);
  if (outside_.event_loop.ended()) throw ProgramEnded{};
  return true;
}

int RunScript(std::istream& script, std::ostream& transcript, std::ostream& errors) {
  return Robot(script, transcript, errors).Play();
}

}  // namespace quilla::robot
