// Makes up a script, line by line: something that a user might do next, by what the program shows.
// The same seed makes the same script.
#ifndef QUILLA_WALK_SCRIPT_MAKER_H_
#define QUILLA_WALK_SCRIPT_MAKER_H_

#include <random>
#include <string>
#include <vector>

#include "panel/quilla.h"
#include "platform/control.h"
#include "platform/grid.h"
#include "robot/scripted_event_loop.h"

namespace quilla::walk {

class ScriptMaker {
 public:
  /// The program must outlive the object and be started before the first line.
  ScriptMaker(unsigned seed, Quilla& quilla, robot::ScriptedEventLoop& event_loop)
      : random_(seed), quilla_(quilla), event_loop_(event_loop) {}

  std::string NextLine();

  /// A number from 0 to `limit` - 1.
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

 private:
  template <typename List>
  const auto& AnyOf(const List& choice) {
    return choice[static_cast<std::size_t>(Below(static_cast<int>(std::size(choice))))];
  }
  /// The controls of a type that the user can get at: in sight, enabled, in no blocked window.
  template <typename Type>
  std::vector<const Type*> Usable();
  /// Something done with any of them.
  template <typename Type>
  std::string Use();

  /// What leads on in the task at hand: its text, its keys, and the button that ends it.
  std::string GoOn();
  std::string QueueAnswer();
  std::string QueuePath();

  std::string Act(const Grid& grid);
  std::string Act(const ComboBox& list);
  std::string Act(const TextBox& text_box);
  std::string Act(const Control& control);
  std::string AnyName();

  std::mt19937 random_;
  Quilla& quilla_;
  robot::ScriptedEventLoop& event_loop_;
  std::string planned_;  // the line that comes next, if it is not empty
};

}  // namespace quilla::walk

#endif  // QUILLA_WALK_SCRIPT_MAKER_H_
