// What a screen reader calls the controls that have no caption of their own.
#ifndef QUILLA_WINDOW_ACCESSIBLE_NAMES_H_
#define QUILLA_WINDOW_ACCESSIBLE_NAMES_H_

#include <QString>

#include "platform/control.h"

namespace quilla {

/// The name of a control; empty for one that its caption tells.
QString AccessibleNameOf(const Control& control);

}  // namespace quilla

#endif  // QUILLA_WINDOW_ACCESSIBLE_NAMES_H_
