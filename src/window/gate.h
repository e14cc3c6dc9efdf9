// The one door from Qt's events into the models. No exception leaves through it, since Qt cannot
// carry one through its event loop.
#ifndef QUILLA_WINDOW_GATE_H_
#define QUILLA_WINDOW_GATE_H_

#include <QObject>
#include <exception>
#include <utility>

#include "platform/failure.h"

namespace quilla {

class Gate : public QObject {
  Q_OBJECT

 public:
  /// Runs `action`, something that the user did or a timer that is due. A failure of the system
  /// ends it where it stands; any other exception does too, is told on standard error and kept.
  template <typename Action>
  void Enter(Action&& action) {
    if (shut_) return;
    Q_EMIT Entered();
    try {
      std::forward<Action>(action)();
    } catch (const Failure&) {
    } catch (const std::exception& fault) {
      qCritical("A fault in the program: %s", fault.what());
      escaped_ = std::current_exception();
    } catch (...) {
      escaped_ = std::current_exception();
    }
    Q_EMIT Left();
  }

  /// Lets nothing in any more: the program is ending.
  void Shut() { shut_ = true; }
  bool is_shut() const { return shut_; }

  /// The last exception that was no failure of the system, or null. It is kept once.
  std::exception_ptr TakeEscaped() { return std::exchange(escaped_, nullptr); }

 Q_SIGNALS:
  /// An action begins. Actions stand in one another while a handler waits for a dialog.
  void Entered();
  /// An action is over, and what it changed may be shown at one stroke.
  void Left();

 private:
  bool shut_ = false;
  std::exception_ptr escaped_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_GATE_H_
