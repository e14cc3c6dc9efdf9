// Windows and their event loop. A window is made when its form is first shown, or ahead of that,
// and is kept, hidden, while the form is closed.
#ifndef QUILLA_WINDOW_QT_EVENT_LOOP_H_
#define QUILLA_WINDOW_QT_EVENT_LOOP_H_

#include <QEventLoop>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <unordered_map>
#include <utility>

#include "platform/outside.h"
#include "system/end_requests.h"
#include "window/gate.h"

namespace quilla {

class QtEventLoop : public EventLoop {
 public:
  using WindowFactory = std::function<std::unique_ptr<QWidget>(Form&)>;

  QtEventLoop(Gate& gate, WindowFactory make_window)
      : gate_(gate), make_window_(std::move(make_window)) {}

  /// Told when the window of a form has been made, before it is shown.
  std::function<void(Form&, QWidget&)> on_made;

  /// Takes all windows down, to be done before the forms go.
  void DestroyWindows() { windows_.clear(); }
  /// Takes the window of a form that will not be shown again down.
  void DiscardWindow(const Form& form) { windows_.erase(&form); }
  /// The window of a form, made if need be, ahead of its being shown.
  QWidget& MadeWindowOf(Form& form);
  /// The window of a form; null while it was never made.
  QWidget* WindowOf(const Form& form) const;

  /// Waiting for anything once the program has ended leaves the handler that waits.
  void Yield(const Control& waiter) override;
  /// Waits a moment for events and handles them.
  void Turn();
  void End() override;
  void NeverReturn() override { WaitForTheEnd(); }

 protected:
  void OpenWindow(Form& form) override;
  void RaiseWindow(Form& form) override;
  void CloseWindow(Form& form) override;
  void WaitUntilClosed(Form& form) override;

 private:
  Gate& gate_;
  QTimer wake_;
  WindowFactory make_window_;
  std::unordered_map<const Form*, std::unique_ptr<QWidget>> windows_;
  std::unordered_map<const Form*, QEventLoop*> waits_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_QT_EVENT_LOOP_H_
