// Compares what the widgets of a window show with the models behind them.
#ifndef QUILLA_TESTS_WINDOW_WIDGET_CHECK_H_
#define QUILLA_TESTS_WINDOW_WIDGET_CHECK_H_

#include <QStringList>

#include "window/form_mirror.h"

namespace quilla {

/// A line for each property that a widget shows otherwise than its model has it.
QStringList DifferencesFromModels(FormMirror& mirror, const QWidget& window);

}  // namespace quilla

#endif  // QUILLA_TESTS_WINDOW_WIDGET_CHECK_H_
