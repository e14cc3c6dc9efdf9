// The robot's hands on the real widgets: every act is an event on the widget of that name.
#ifndef QUILLA_TESTS_WINDOW_WIDGET_HANDS_H_
#define QUILLA_TESTS_WINDOW_WIDGET_HANDS_H_

#include <QWidget>
#include <functional>
#include <map>
#include <memory>

#include "robot/hands.h"
#include "window/form_mirror.h"
#include "window/gate.h"

namespace quilla::robot {

class WidgetHands : public Hands {
 public:
  /// Shows the windows of the program as the event loop opens them.
  explicit WidgetHands(ScriptedEventLoop& event_loop);

  void Click(Control& control) override;
  void Press(Control& control) override;
  void Release(Control& control) override;
  void Type(TextBox& text_box, std::string_view character) override;
  void Clear(TextBox& text_box) override;
  void Key(Control& control, std::string_view character) override;
  void Pick(ComboBox& list, int position) override;
  void Drag(Grid& grid, Cell from, Cell to) override;
  void Hover(Control& control) override;
  void HoverCell(Grid& grid, Cell cell) override;
  void Enter(Form& form) override;
  void Escape(Form& form) override;
  void Close(Form& form) override;

 protected:
  struct Shown {
    std::unique_ptr<QWidget> window;
    FormMirror* mirror = nullptr;
  };

  /// The windows that were ever shown, by form.
  const std::map<const Form*, Shown>& shown() const { return shown_; }

 private:
  void Open(Form& form);
  QWidget& WidgetOf(const Control& control) const;
  /// Lets the window follow, and lets what left the models as an exception go on its way.
  void Settle();

  ScriptedEventLoop& event_loop_;
  Gate gate_;
  std::map<const Form*, Shown> shown_;
};

}  // namespace quilla::robot

#endif  // QUILLA_TESTS_WINDOW_WIDGET_HANDS_H_
