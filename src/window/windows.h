// Which window shows which form.
#ifndef QUILLA_WINDOW_WINDOWS_H_
#define QUILLA_WINDOW_WINDOWS_H_

#include <QWidget>
#include <memory>

#include "platform/outside.h"
#include "window/gate.h"

namespace quilla {

/// Makes the window of a form, found by the form's name. The window of a modal dialog comes as a
/// modal one. Fails with std::out_of_range for a form that has no window.
std::unique_ptr<QWidget> MakeWindow(Gate& gate, EventLoop& event_loop, Form& form);

}  // namespace quilla

#endif  // QUILLA_WINDOW_WINDOWS_H_
