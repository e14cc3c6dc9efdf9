// The commands of a script line: what the user does, what waits in the queues, and what is
// printed. A command that a user could not do is refused, and nothing of it is done.
#ifndef QUILLA_ROBOT_COMMANDS_H_
#define QUILLA_ROBOT_COMMANDS_H_

#include <ostream>
#include <string>
#include <string_view>

#include "panel/quilla.h"
#include "platform/button.h"
#include "robot/changes.h"
#include "robot/hands.h"
#include "robot/row_text.h"
#include "robot/surroundings.h"
#include "robot/words.h"

namespace quilla::robot {

class Commands {
 public:
  Commands(std::ostream& transcript, Surroundings& surroundings, Quilla& quilla, Hands& hands)
      : transcript_(transcript),
        surroundings_(surroundings),
        quilla_(quilla),
        hands_(hands),
        changes_(quilla) {}

  /// Takes note of how all stands when the panel has opened.
  void Begin() { changes_.Begin(); }
  /// Carries out one command of the script. Fails with NotACommand for words that are none.
  void Run(Words words);

 private:
  using Command = void (Commands::*)(Words&);
  /// What a script line names: the name as typed, and the control.
  template <typename Type>
  struct Target {
    std::string name;
    Type& control;
  };

  static Command CommandNamed(std::string_view name);

  // What the user does.
  void Click(Words& words);
  void Press(Words& words);
  void Release(Words& words);
  void Type(Words& words);
  void Clear(Words& words);
  void Key(Words& words);
  void Pick(Words& words);
  void ClickCell(Words& words);
  void Drag(Words& words);
  void Hover(Words& words);
  void Row(Words& words);
  void Enter(Words& words);
  void Escape(Words& words);
  void Close(Words& words);
  // What the outside will do.
  void Answer(Words& words);
  void Path(Words& words);
  void NoPath(Words& words);
  void Port(Words& words);
  void Feed(Words& words);
  void Tick(Words& words);
  void Settle(Words& words);
  // What is printed.
  void State(Words& words);
  void Show(Words& words);
  void Dump(Words& words);
  void Colors(Words& words);
  void List(Words& words);
  void PrintChanges(Words& words);

  Form& Panel() { return quilla_.panel()->form(); }
  /// The window of that name, or null.
  Form* FindWindow(std::string_view name);
  /// The control that the next words name: a name, with the index behind it if it is one of an
  /// array. Fails with NotACommand where there is none, or none of that type.
  Target<Control> TakeControl(Words& words);
  template <typename Type>
  Target<Type> TakeControlOf(Words& words, const char* type);

  /// Whether the user can do something to the control, and to the place in it. Prints the
  /// refusal if not; else the control's window becomes the active one.
  bool MayUse(const std::string& name, const Control& control, bool is_inside = true);
  template <typename Type>
  bool MayUse(const Target<Type>& target, bool is_inside = true) {
    return MayUse(target.name, target.control, is_inside);
  }
  /// The presses of `row`: false if one was refused.
  bool EnterRow(const RowKeys& keys);
  bool PressKey(const std::string& name, int index = Control::kNoIndex);
  /// Accepts a name in the box whose controls have these names: picked if it is known.
  struct NameBox {
    const char* text;
    const char* known;
    const char* list;
    const char* accept;
  };
  bool EnterName(const NameBox& box, const std::string& name);
  bool TypeInto(const Target<TextBox>& target, std::string_view text);
  bool PickFrom(const Target<ComboBox>& list, int position);
  void DragBetween(const Target<Grid>& grid, Cell from, Cell to);
  /// Whether the button of the active window is there and can be pressed.
  bool MayPress(const Form& form, const Button* button);
  Form& ActiveWindow();

  std::ostream& transcript_;
  Surroundings& surroundings_;
  Quilla& quilla_;
  Hands& hands_;
  Changes changes_;
};

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_COMMANDS_H_
