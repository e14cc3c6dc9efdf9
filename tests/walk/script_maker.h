// Makes up a script, line by line: something that a user might do next, by what the program shows.
// The same seed makes the same script.
#ifndef QUILLA_WALK_SCRIPT_MAKER_H_
#define QUILLA_WALK_SCRIPT_MAKER_H_

#include <functional>
#include <random>
#include <string>
#include <string_view>
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
  using Choice = std::function<bool(const Control&)>;

  /// The controls of that sort that the user can get at: visible, enabled, in no blocked window.
  std::vector<Control*> Usable(const Choice& choice);
  template <typename Type>
  const Type& AnyOf(const std::vector<Type>& choice) {
    return choice[static_cast<std::size_t>(Below(static_cast<int>(choice.size())))];
  }

  // The habits of the user.
  /// What leads on in the task at hand: its text, its keys, and the button that ends it.
  std::string GoOn();
  std::string ChooseCommand();
  std::string ClickUsable();
  /// A click on whatever there is: most of them are refused.
  std::string ClickAnything();
  std::string ClickCell();
  std::string UseInput();
  std::string QueueAnswer();
  std::string Wait();
  std::string Hover();
  std::string CloseWindow();

  std::string ClickOn(const Control& control);
  std::string QueuePath();
  std::string TypeInto(const Control& text_box);
  std::string PressKeys(const Control& control);
  std::string PickFrom(const ComboBox& list);
  int AnyRow(const Grid& grid);
  std::string AnyName();

  std::mt19937 random_;
  Quilla& quilla_;
  robot::ScriptedEventLoop& event_loop_;
  std::string planned_;  // the line that comes next, if it is not empty
};

}  // namespace quilla::walk

#endif  // QUILLA_WALK_SCRIPT_MAKER_H_
