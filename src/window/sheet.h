// A page layout on paper: a picture of its form, drawn as text and lines to fill the paper.
#ifndef QUILLA_WINDOW_SHEET_H_
#define QUILLA_WINDOW_SHEET_H_

#include <QPainter>
#include <QRectF>

#include "platform/form.h"

namespace quilla {

/// Draws the labels and the table of `layout` within `area`, which is in the painter's units.
/// Widths of columns keep their ratios; a text too long for its place is drawn narrower, and cut
/// short with three dots where that is not enough.
void PaintSheet(QPainter& painter, const QRectF& area, const Form& layout);

}  // namespace quilla

#endif  // QUILLA_WINDOW_SHEET_H_
