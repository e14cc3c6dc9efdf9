// The user's hands: what a user does to a window, once the player has found that it can be done.
// One making acts on the models, another on the widgets that show them.
#ifndef QUILLA_ROBOT_HANDS_H_
#define QUILLA_ROBOT_HANDS_H_

#include <functional>
#include <memory>
#include <string_view>

#include "panel/quilla.h"
#include "platform/control.h"
#include "platform/form.h"
#include "platform/grid.h"
#include "platform/text_box.h"
#include "platform/text_list.h"
#include "robot/scripted_event_loop.h"

namespace quilla::robot {

/// A cell of a grid.
struct Cell {
  int row;
  int column;
};

class Hands {
 public:
  virtual ~Hands() = default;

  /// Presses and lets go a key, an option, a menu entry or a label; nothing on another control.
  virtual void Click(Control& control) = 0;
  /// Only presses, or only lets go; neither is a click.
  virtual void Press(Control& control) = 0;
  virtual void Release(Control& control) = 0;
  /// Types one character (in UTF-8) at the end of the text.
  virtual void Type(TextBox& text_box, std::string_view character) = 0;
  virtual void Clear(TextBox& text_box) = 0;
  /// Presses the key of one character (in UTF-8) with the focus on the control.
  virtual void Key(Control& control, std::string_view character) = 0;
  /// Chooses an entry, which is there.
  virtual void Pick(ComboBox& list, int position) = 0;
  /// Presses on one cell, lets go on another or the same, and the click follows. Both are there.
  virtual void Drag(Grid& grid, Cell from, Cell to) = 0;
  /// Moves the pointer over a control, a bare form, or a cell, which is there.
  virtual void Hover(Control& control) = 0;
  virtual void HoverCell(Grid& grid, Cell cell) = 0;
  /// Presses Enter or Esc in a window that has a button for it.
  virtual void Enter(Form& form) = 0;
  virtual void Escape(Form& form) = 0;
  /// Closes a window by its frame.
  virtual void Close(Form& form) = 0;

  /// The script has printed the state or what has changed: the time to compare what is shown with
  /// the models.
  virtual void OnState() {}
};

/// Makes the hands for a program that is not started yet; windows come into sight through the
/// hooks of the event loop.
using HandsFactory = std::function<std::unique_ptr<Hands>(Quilla&, ScriptedEventLoop&)>;

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_HANDS_H_
