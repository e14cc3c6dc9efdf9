// The layouts of the input boxes, one small function each, found by the name of the box.
#ifndef QUILLA_WINDOW_BOX_PAGES_H_
#define QUILLA_WINDOW_BOX_PAGES_H_

#include <QWidget>

#include "platform/button.h"
#include "window/form_mirror.h"

namespace quilla {

/// Builds the widget of an input box, with all that stands in the box, and binds it.
QWidget* BuildBoxPage(FormMirror& mirror, Box& box, QWidget* parent);

}  // namespace quilla

#endif  // QUILLA_WINDOW_BOX_PAGES_H_
