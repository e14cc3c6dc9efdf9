#include "platform/outside.h"

#include "platform/dispatch.h"

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
  bool may_close = true;  // also where the question fails
  CarryOut([&] { may_close = !form.QueryUnload || form.QueryUnload(); });
  if (may_close) Unload(form);
}

}  // namespace quilla
