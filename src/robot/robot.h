// The robot: it plays a script of key presses, clicks and answers on the whole program, and writes
// down what a user would see.
#ifndef QUILLA_ROBOT_ROBOT_H_
#define QUILLA_ROBOT_ROBOT_H_

#include <deque>
#include <functional>
#include <istream>
#include <memory>
#include <ostream>

#include "panel/quilla.h"
#include "robot/commands.h"
#include "robot/hands.h"
#include "robot/model_hands.h"
#include "robot/scripted_outside.h"
#include "robot/words.h"

namespace quilla::robot {

/// The exit codes of a play.
inline constexpr int kPlayed = 0;
inline constexpr int kNoCommand = 2;

class Robot {
 public:
  Robot(std::istream& script, std::ostream& transcript, std::ostream& errors,
        const HandsFactory& make_hands = MakeModelHands);

  /// Asked before each command, and where the script ends: true ends the play from outside. Unsaved
  /// work is then written to a rescue file.
  std::function<bool()> must_end;

  /// Starts the program and plays the script to its end, or to the end of the program. Gives
  /// kPlayed, or kNoCommand with a line in `errors` at the first line that is no command.
  /// Plays once.
  int Play();

  Quilla& quilla() { return quilla_; }
  ScriptedEventLoop& event_loop() { return outside_.event_loop; }

 private:
  void EndIfAsked() const;
  /// Plays the next command, of the line at hand or of the next one that is neither empty nor a
  /// comment; false at the end of the script.
  bool PlayNextCommand();

  std::istream& script_;
  std::ostream& transcript_;
  std::ostream& errors_;
  int line_number_ = 0;
  /// What the line at hand still holds; a handler that waits takes it from here.
  std::deque<Words> line_;
  ScriptedOutside outside_;
  Quilla quilla_;
  std::unique_ptr<Hands> hands_;
  Commands commands_;
};

/// Plays a script on the models, until `must_end`, if it is there. Gives the exit code of the play.
int RunScript(std::istream& script, std::ostream& transcript, std::ostream& errors,
              std::function<bool()> must_end = {});

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_ROBOT_H_
