// A fuzzing target: any script of the robot, in a folder of its own.
#include <algorithm>
#include <sstream>

#include "fuzz/fuzz.h"
#include "robot/robot.h"
#include "scenario.h"

namespace quilla::fuzz {

void Script(std::string_view input) {
  constexpr std::size_t kLongest = 2000;
  static const robot::ScratchFolder kFolder("no files");
  std::string text(input.substr(0, kLongest));
  for (const char outside : {'/', '\\'}) std::replace(text.begin(), text.end(), outside, '_');
  std::istringstream script(text);
  std::ostringstream transcript;
  robot::Robot robot(script, transcript, transcript);
  robot.event_loop().never_return = [] { throw robot::ScriptOver{}; };
  const int result = robot.Play();
  Require(result == robot::kPlayed || result == robot::kNoCommand);
}

}  // namespace quilla::fuzz
