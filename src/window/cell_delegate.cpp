#include "window/cell_delegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <span>

#include "program/vocabulary.h"
#include "window/colors.h"
#include "window/grid_model.h"

namespace quilla {
namespace {

constexpr float kSelectedTint = 0.45F;
constexpr double kFocusWidth = 2;
constexpr int kLongestTip = 2000;

// A mark is a line drawn in a square of side 1.
using MarkPoint = QPointF;
const std::array kArrow = {MarkPoint(0.1, 0.0), MarkPoint(0.8, 0.5), MarkPoint(0.1, 1.0),
                           MarkPoint(0.1, 0.0)};
const std::array kTick = {MarkPoint(0.0, 0.55), MarkPoint(0.35, 0.95), MarkPoint(1.0, 0.05)};
const std::array kCross = {MarkPoint(0.0, 0.0), MarkPoint(1.0, 1.0), MarkPoint(0.5, 0.5),
                           MarkPoint(1.0, 0.0), MarkPoint(0.0, 1.0)};
const std::array kDiamond = {MarkPoint(0.5, 0.0), MarkPoint(1.0, 0.5), MarkPoint(0.5, 1.0),
                             MarkPoint(0.0, 0.5), MarkPoint(0.5, 0.0)};
const std::array kPencil = {MarkPoint(0.0, 1.0),  MarkPoint(0.1, 0.65), MarkPoint(0.75, 0.0),
                            MarkPoint(1.0, 0.25), MarkPoint(0.35, 0.9), MarkPoint(0.0, 1.0)};

struct PaintedLook {
  CellColor color;
  bool bold;
  std::span<const MarkPoint> mark;
};

// An origin row has no mark: its word tells it.
const std::array kPaintedLooks = {
    PaintedLook{kPickedColor, true, kTick},   PaintedLook{kCandidateColor, false, kCross},
    PaintedLook{kFoundColor, true, kDiamond}, PaintedLook{kCommentColor, false, kPencil},
    PaintedLook{kOriginColor, true, {}},
};

struct Look {
  std::optional<QColor> back;
  QColor fore;
  bool bold = false;
  std::span<const MarkPoint> mark;
};

/// The look of a cell; `text` names the colour of texts on a ground that is not painted.
Look LookOf(CellColor back, CellColor fore, const QPalette& palette, QPalette::ColorRole text) {
  Look look;
  look.fore = palette.color(text);
  if (back == kSelectionColor) {
    look.back = SelectedGround(palette);
    look.fore = palette.color(QPalette::HighlightedText);
    look.mark = kArrow;
  } else if (back.is_painted()) {
    look.back = GroundOf(back, palette);
    look.fore = TextOn(*look.back);
    for (const PaintedLook& painted : kPaintedLooks) {
      if (painted.color != back) continue;
      look.bold = painted.bold;
      look.mark = painted.mark;
    }
  }
  if (fore.is_painted()) {
    const QColor ground = look.back.value_or(palette.color(QPalette::Base));
    look.fore = ReadableOn(ground, FromBlueGreenRed(static_cast<unsigned>(fore.value())));
  }
  return look;
}

// Draws the mark at the right end of `area` and gives the room that is left for the text.
QRect DrawMark(QPainter& painter, const Look& look, QRect area) {
  painter.save();
  const double side = area.height() * 0.36;
  const QPointF corner(area.right() - side, area.center().y() - side / 2 + 0.5);
  QPolygonF line;
  for (const MarkPoint& point : look.mark) line << corner + point * side;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(look.fore, side * 0.22, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(line);
  painter.restore();
  area.setRight(static_cast<int>(corner.x()) - kCellMargin);
  return area;
}

// Texts in all fonts stand on the line of `pitch`, the font of the table.
void DrawText(QPainter& painter, const Look& look, const QRectF& area, QFont font,
              const QFontMetricsF& pitch, const QModelIndex& index) {
  font.setBold(look.bold);
  const QFontMetricsF metrics(font);
  const double line = area.top() + (area.height() - pitch.height()) / 2 + pitch.ascent();
  const QRectF place(area.left(), line - metrics.ascent(), area.width(), metrics.height());
  painter.setFont(font);
  painter.setPen(look.fore);
  const auto alignment = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
  const QString text = metrics.elidedText(index.data().toString(), Qt::ElideRight, area.width());
  painter.drawText(
      place, static_cast<int>(alignment & Qt::AlignHorizontal_Mask) | Qt::TextSingleLine, text);
}

// On a screen with a scale of 1.5 the edges of cells fall between its dots. What is drawn along
// them begins and ends at dots, so that it is as thick in one place as in another.

/// The area from the dots next to its edges.
QRectF OnDots(const QPainter& painter, const QRectF& area) {
  const QTransform to_dots = painter.deviceTransform();
  QRectF dots = to_dots.mapRect(area);
  dots.setCoords(qRound(dots.left()), qRound(dots.top()), qRound(dots.right()),
                 qRound(dots.bottom()));
  return to_dots.inverted().mapRect(dots);
}

/// A thickness of as many whole dots as it has room for, one at least.
double InWholeDots(const QPainter& painter, double thickness) {
  const double scale = painter.deviceTransform().m22();
  return std::max(1.0, std::floor(thickness * scale)) / scale;
}

/// Draws the lines below and to the right of a cell, and gives what is left of it. Qt would draw
/// the lines across the whole view dot by dot, which takes longer than the cells.
QRectF DrawLines(QPainter& painter, const QRect& cell, const QColor& color) {
  const QRectF area = OnDots(painter, cell);
  const double line = InWholeDots(painter, 1);
  painter.fillRect(QRectF(area.right() - line, area.top(), line, area.height()), color);
  painter.fillRect(QRectF(area.left(), area.bottom() - line, area.width(), line), color);
  return area.adjusted(0, 0, -line, -line);
}

/// Draws the ring of the focus along the inner edge of an area.
void DrawRing(QPainter& painter, const QRectF& area, const QColor& color) {
  const double ring = InWholeDots(painter, kFocusWidth);
  painter.fillRect(QRectF(area.left(), area.top(), area.width(), ring), color);
  painter.fillRect(QRectF(area.left(), area.bottom() - ring, area.width(), ring), color);
  painter.fillRect(QRectF(area.left(), area.top(), ring, area.height()), color);
  painter.fillRect(QRectF(area.right() - ring, area.top(), ring, area.height()), color);
}

}  // namespace

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& cell,
                         const QModelIndex& index) const {
  if (index.row() >= grid_.Rows()) return;
  QStyleOptionViewItem option = cell;
  option.rect.adjust(0, 0, -1, -1);
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  const Look look = LookOf(grid_.BackColor(index.row(), index.column()),
                           grid_.ForeColor(index.row(), index.column()), option.palette,
                           selected ? QPalette::HighlightedText : QPalette::Text);
  painter->save();
  if (look.back) {
    painter->fillRect(cell.rect, *look.back);
  } else {
    const bool has_cursor = CursorColumn(grid_, index.row()) >= 0;
    painter->fillRect(cell.rect, selected     ? SelectedGround(option.palette)
                                 : has_cursor ? CursorRowGround(option.palette)
                                              : option.palette.color(QPalette::Base));
  }
  if (look.back && selected) {
    QColor tint = option.palette.color(QPalette::Highlight);
    tint.setAlphaF(kSelectedTint);
    painter->fillRect(cell.rect, tint);
  }
  QRect area = option.rect.adjusted(kCellMargin, 0, -kCellMargin, 0);
  if (!look.mark.empty()) area = DrawMark(*painter, look, area);
  DrawText(*painter, look, area, FontOf(option, index), QFontMetricsF(option.font), index);
  painter->restore();
  const QRectF inside = DrawLines(*painter, cell.rect, LineBetweenCells(option.palette));
  if (option.state.testFlag(QStyle::State_HasFocus)) {
    const bool has_ground = look.back || selected;
    DrawRing(*painter, inside, has_ground ? look.fore : option.palette.color(QPalette::Highlight));
  }
}

QFont CellDelegate::FontOf(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QFont font = option.font;
  if (index.column() == prose_column_) font.setFamily(QApplication::font().family());
  return font;
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QFontMetrics metrics(FontOf(option, index));
  return {metrics.horizontalAdvance(index.data().toString()) + 2 * kCellMargin, metrics.height()};
}

bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index) {
  const bool cut = sizeHint(option, index).width() > option.rect.width();
  // As HTML a long text is broken into lines.
  const QString text = index.data().toString().left(kLongestTip).toHtmlEscaped();
  const QString tip = "<p style='white-space: pre-wrap'>" + text + "</p>";
  QToolTip::showText(event->globalPos(), cut ? tip : QString(), view);
  return true;
}

}  // namespace quilla

#include "moc_cell_delegate.cpp"
