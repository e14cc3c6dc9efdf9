// The hands on real windows with the rest of the world the robot's.
#ifndef QUILLA_TESTS_WINDOW_WIDGET_HANDS_H_
#define QUILLA_TESTS_WINDOW_WIDGET_HANDS_H_

#include <QWidget>
#include <functional>
#include <map>
#include <memory>

#include "demo/window_hands.h"
#include "window/form_mirror.h"
#include "window/gate.h"

namespace quilla::robot {

class WidgetHands : public demo::WindowHands {
 public:
  /// Shows the windows of the program as the event loop opens them.
  explicit WidgetHands(ScriptedEventLoop& event_loop);

 protected:
  struct Shown {
    std::unique_ptr<QWidget> window;
    FormMirror* mirror = nullptr;
  };

  /// The windows that were ever shown, by form.
  const std::map<const Form*, Shown>& shown() const { return shown_; }
  QWidget& WindowOf(const Form& form) const override { return *shown_.at(&form).window; }
  /// Lets the window follow, and lets what left the models as an exception go on its way.
  void Settle() override;

 private:
  void Open(Form& form);

  ScriptedEventLoop& event_loop_;
  Gate gate_;
  std::map<const Form*, Shown> shown_;
};

}  // namespace quilla::robot

#endif  // QUILLA_TESTS_WINDOW_WIDGET_HANDS_H_
