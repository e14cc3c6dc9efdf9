// The start of the program on a desktop.
#ifndef QUILLA_WINDOW_START_H_
#define QUILLA_WINDOW_START_H_

#include "panel/quilla.h"
#include "window/qt_outside.h"

namespace quilla {

/// Shows the splash. While it stands, which would be an idle time, the main panel and its window
/// are made.
void Start(Quilla& quilla, QtOutside& outside);

}  // namespace quilla

#endif  // QUILLA_WINDOW_START_H_
