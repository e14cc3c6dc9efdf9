// Colours of the models as Qt colours, kept readable on light and on dark palettes.
#ifndef QUILLA_WINDOW_COLORS_H_
#define QUILLA_WINDOW_COLORS_H_

#include <QColor>
#include <QPalette>
#include <QString>

#include "platform/grid.h"

namespace quilla {

/// The colour of a blue-green-red value: 0000FFh is pure red.
QColor FromBlueGreenRed(unsigned value);

/// The ground of a cell that is painted in a colour of the models: a shade of it on which text
/// reads well, dark on a dark palette.
QColor GroundOf(CellColor color, const QPalette& palette);

/// The grounds of selected cells, on which the palette's text for them reads well; and of the other
/// cells in the row with the cursor.
QColor SelectedGround(const QPalette& palette);
QColor CursorRowGround(const QPalette& palette);

/// The lines between cells: seen on light and dark grounds, and behind any text.
QColor LineBetweenCells(const QPalette& palette);

/// Text that stands back behind other text, and still reads well.
QColor QuietText(const QPalette& palette);

/// What a cell's colour tells, in a few words; empty where it tells nothing.
QString MeaningOf(CellColor color);

/// Black or white, whichever reads better on `background`.
QColor TextOn(const QColor& background);

/// `color`, made lighter or darker until it reads well on `background`.
QColor ReadableOn(const QColor& background, QColor color);

}  // namespace quilla

#endif  // QUILLA_WINDOW_COLORS_H_
