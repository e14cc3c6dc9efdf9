// Colours of the models as Qt colours, kept readable on light and on dark palettes.
#ifndef QUILLA_WINDOW_COLORS_H_
#define QUILLA_WINDOW_COLORS_H_

#include <QColor>

namespace quilla {

/// The colour of a blue-green-red value: 0000FFh is pure red.
QColor FromBlueGreenRed(unsigned value);

/// Black or white, whichever reads better on `background`.
QColor TextOn(const QColor& background);

/// `color`, made lighter or darker until it reads well on `background`.
QColor ReadableOn(const QColor& background, QColor color);

}  // namespace quilla

#endif  // QUILLA_WINDOW_COLORS_H_
