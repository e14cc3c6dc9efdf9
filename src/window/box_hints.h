// What the input boxes say of themselves: what each takes, and why a key of it is grey. These lines
// are the window's own and quieter than the tips, which tell the task.
#ifndef QUILLA_WINDOW_BOX_HINTS_H_
#define QUILLA_WINDOW_BOX_HINTS_H_

#include <QString>

#include "platform/button.h"
#include "window/form_mirror.h"

namespace quilla {

/// The lines for a box as its controls are now; empty for a box that needs none.
QString HintOf(const FormMirror& mirror, const Box& box);

}  // namespace quilla

#endif  // QUILLA_WINDOW_BOX_HINTS_H_
