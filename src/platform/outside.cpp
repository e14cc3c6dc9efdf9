#include "platform/outside.h"

#include "platform/failure.h"

namespace quilla {

void EventLoop::Show(Form& form) {
  if (form.visible()) {
    RaiseWindow(form);
    return;
  }
  form.set_visible(true);
  OpenWindow(form);
}

void EventLoop::ShowModal(Form& form) {
  Show(form);
  WaitUntilClosed(form);
}

void EventLoop::Unload(Form& form) {
  if (!form.visible()) return;
  form.set_visible(false);
  CloseWindow(form);
  Dispatch(form.Unload);
}

void EventLoop::CloseByFrame(Form& form) {
  bool may_close = true;
  if (form.QueryUnload) Dispatch(std::function<void()>([&] { may_close = form.QueryUnload(); }));
  if (may_close) Unload(form);
}

}  // namespace quilla
