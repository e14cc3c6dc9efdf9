// Makes the widgets that show the controls of a form, and binds them.
#ifndef QUILLA_WINDOW_WIDGETS_H_
#define QUILLA_WINDOW_WIDGETS_H_

#include <QWidget>
#include <string_view>

#include "platform/control.h"
#include "window/form_mirror.h"

namespace quilla {

/// What a button looks like: a push button, or a key among many.
enum class ButtonShape { kPush, kKey };

class WidgetMaker {
 public:
  /// Makes widgets as children of `parent`.
  WidgetMaker(FormMirror& mirror, QWidget* parent) : mirror_(mirror), parent_(parent) {}

  /// Makes the widget that shows a control and binds it; null for a control of no visible kind.
  QWidget* Make(Control& control, ButtonShape shape = ButtonShape::kPush) const;
  /// The same for the control of that name; null if the form has none.
  QWidget* Make(std::string_view name, int index = Control::kNoIndex,
                ButtonShape shape = ButtonShape::kPush) const;
  /// The same, in bold.
  QWidget* MakeBold(std::string_view name, int index = Control::kNoIndex) const;
  /// Makes a button that has the focus at times but is never on view.
  QWidget* MakeOutOfSight(std::string_view name) const;

  FormMirror& mirror() const { return mirror_; }

 private:
  FormMirror& mirror_;
  QWidget* parent_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_WIDGETS_H_
