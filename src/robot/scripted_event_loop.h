// The event loop of the script: windows that open and close in the transcript, and handlers that
// take the next lines of the script while they wait.
#ifndef QUILLA_ROBOT_SCRIPTED_EVENT_LOOP_H_
#define QUILLA_ROBOT_SCRIPTED_EVENT_LOOP_H_

#include <functional>
#include <ostream>
#include <vector>

#include "platform/outside.h"
#include "system/end_requests.h"

namespace quilla::robot {

/// The script is over while a handler waits for more of it. Like all that ends the play, it is no
/// std::exception: no handler between the wait and the player can swallow it.
struct ScriptOver {};

class ScriptedEventLoop : public EventLoop {
 public:
  explicit ScriptedEventLoop(std::ostream& transcript) : transcript_(transcript) {}

  /// Plays one command for a handler that waits; false at the end of the script.
  std::function<bool()> play_command;
  /// Waits for a handler that never comes back. It may throw what is no std::exception.
  std::function<void()> never_return = WaitForTheEnd;
  /// Told when a window, the panel included, comes into sight and goes.
  std::function<void(Form&)> on_open;
  std::function<void(Form&)> on_close;

  /// The window that the user used last; null for the panel.
  Form* active() const { return active_; }
  void Use(Form& form) { active_ = &form; }
  /// The modal dialog that all other windows stand behind; null if there is none.
  const Form* modal() const;
  bool ended() const { return ended_; }

  /// One turn of a waiting loop is one command of the script. At its end the wait is abandoned with
  /// ScriptOver, here and below.
  void Yield(const Control& waiter) override;
  void End() override { ended_ = true; }
  void NeverReturn() override { never_return(); }

 protected:
  void OpenWindow(Form& form) override;
  void RaiseWindow(Form& form) override { Use(form); }
  void CloseWindow(Form& form) override;
  void WaitUntilClosed(Form& form) override;

 private:
  std::ostream& transcript_;
  Form* active_ = nullptr;
  std::vector<const Form*> modal_;
  bool ended_ = false;
};

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_SCRIPTED_EVENT_LOOP_H_
