#include "robot/scripted_event_loop.h"

#include <algorithm>

#include "platform/form.h"
#include "program/vocabulary.h"

namespace quilla::robot {

const Form* ScriptedEventLoop::modal() const {
  // A dialog that code has closed under an inner one waits on for its turn, but blocks no more.
  const auto top = std::find_if(modal_.rbegin(), modal_.rend(),
                                [](const Form* form) { return form->visible(); });
  return top == modal_.rend() ? nullptr : *top;
}

void ScriptedEventLoop::OpenWindow(Form& form) {
  // The panel is the only window that opens and closes without a word.
  if (form.name() != kProgrammingPanel) transcript_ << "open " << form.name() << '\n';
  Use(form);
  if (on_open) on_open(form);
}

void ScriptedEventLoop::CloseWindow(Form& form) {
  if (form.name() != kProgrammingPanel) transcript_ << "closed " << form.name() << '\n';
  if (active_ == &form) active_ = nullptr;
  if (on_close) on_close(form);
}

void ScriptedEventLoop::Yield(const Control& waiter) {
  try {
    if (!play_command()) throw ScriptOver{};
  } catch (const ScriptOver&) {
    transcript_ << "waiting " << waiter.name() << '\n';
    throw;
  }
}

void ScriptedEventLoop::WaitUntilClosed(Form& form) {
  modal_.push_back(&form);
  while (form.visible()) Yield(form);
  modal_.pop_back();
}

}  // namespace quilla::robot
