// The robot's hands on the windows of the program: every act is an event on the widget that shows
// the control.
#ifndef QUILLA_DEMO_WINDOW_HANDS_H_
#define QUILLA_DEMO_WINDOW_HANDS_H_

#include <QAction>
#include <QRect>
#include <QWidget>

#include "robot/hands.h"
#include "window/grid_view.h"

namespace quilla::demo {

class WindowHands : public robot::Hands {
 public:
  void Click(Control& control) override;
  void Press(Control& control) override;
  void Release(Control& control) override;
  void Type(TextBox& text_box, std::string_view character) override;
  void Clear(TextBox& text_box) override;
  void Key(Control& control, std::string_view character) override;
  void Pick(ComboBox& list, int position) override;
  void Drag(Grid& grid, robot::Cell from, robot::Cell to) override;
  void Hover(Control& control) override;
  void HoverCell(Grid& grid, robot::Cell cell) override;
  void Enter(Form& form) override;
  void Escape(Form& form) override;
  void Close(Form& form) override;

 protected:
  /// The window of a form that was shown.
  virtual QWidget& WindowOf(const Form& form) const = 0;
  /// An act on that place of a widget comes next.
  virtual void Aim(QWidget& /*widget*/, const QRect& /*place*/) {}
  /// The same for a key, one of many.
  virtual void AimKey(QWidget& /*widget*/) {}
  virtual void Choose(QAction& action) { action.trigger(); }
  /// An act has been done.
  virtual void Settle() {}

 private:
  QWidget& WidgetOf(const Control& control) const;
  void AimAt(GridView& view, robot::Cell cell);
  void PressKey(Button* button, const Form& form, Qt::Key key);
};

}  // namespace quilla::demo

#endif  // QUILLA_DEMO_WINDOW_HANDS_H_
