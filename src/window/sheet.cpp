#include "window/sheet.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <algorithm>
#include <string_view>

#include "platform/button.h"
#include "platform/grid.h"
#include "window/colors.h"
#include "window/qt_text.h"

namespace quilla {
namespace {

// Heights in table rows.
constexpr double kHeadingHeight = 2.0;
constexpr double kHeadLineHeight = 1.3;
constexpr double kGapHeight = 0.4;
constexpr double kColumnHeadHeight = 1.2;
constexpr double kAboveTable =
    kHeadingHeight + 2 * kHeadLineHeight + kGapHeight + kColumnHeadHeight;
// A row on narrow paper is no higher than this part of the width.
constexpr double kRowHeightOfWidth = 1.0 / 36;

// Sizes as parts of the row height.
constexpr double kHeadingSize = 0.9;
constexpr double kTextSize = 0.56;
constexpr double kPadding = 0.25;
constexpr double kRuleWidth = 0.025;

// How narrow letters may become before a text is cut short.
constexpr double kNarrowest = 0.55;
// Twelve characters, an opcode of three bytes, fit a column of this width.
constexpr int kOpcodeWidth = 1080;
constexpr int kOpcodeLength = 12;

const QColor kGridLine(0x90, 0x90, 0x90);

class SheetPainter {
 public:
  SheetPainter(QPainter& painter, const QRectF& area, const Form& layout)
      : painter_(painter), area_(area), layout_(layout) {}

  void Paint() {
    const auto* const table = dynamic_cast<const Grid*>(layout_.Find("Table"));
    if (table == nullptr) return;
    Measure(*table);
    painter_.setPen(QPen(Qt::black, row_height_ * kRuleWidth));
    const double bottom = PaintHead();
    PaintColumnHeads(*table, bottom);
    for (int row = 0; row < table->Rows(); ++row) {
      PaintRow(*table, row, bottom + (kColumnHeadHeight + row) * row_height_);
    }
  }

 private:
  void Measure(const Grid& table) {
    int twips = 0;
    for (int column = 0; column < table.Cols(); ++column) twips += table.ColWidth(column);
    twip_ = area_.width() / twips;
    row_height_ =
        std::min(area_.height() / (kAboveTable + table.Rows()), area_.width() * kRowHeightOfWidth);
    text_font_ = Sized(QApplication::font(), kTextSize);
    column_font_ = Sized(QFontDatabase::systemFont(QFontDatabase::FixedFont), kTextSize);
    bold_font_ = text_font_;
    bold_font_.setBold(true);
    heading_font_ = Sized(bold_font_, kHeadingSize);
    const double opcode = Metrics(column_font_).horizontalAdvance('0') * kOpcodeLength;
    pitch_ = std::min(1.0, Inner(kOpcodeWidth * twip_) / opcode);
  }

  QFont Sized(QFont font, double of_row_height) const {
    font.setPixelSize(std::max(1, static_cast<int>(row_height_ * of_row_height)));
    return font;
  }

  QFontMetricsF Metrics(const QFont& font) const { return {font, painter_.device()}; }
  double Inner(double width) const { return width - 2 * kPadding * row_height_; }

  QString Text(std::string_view label) const {
    const Control* const control = layout_.Find(label);
    return control == nullptr ? QString() : LabelText(control->caption());
  }

  /// Paints what stands above the table. Gives the top of the column headings.
  double PaintHead() {
    QRectF line(area_.left(), area_.top(), area_.width(), kHeadingHeight * row_height_);
    Write(line, Text("HeadingLabel"), heading_font_, Qt::AlignHCenter);
    line = {line.left(), line.bottom(), line.width(), kHeadLineHeight * row_height_};
    const QString page = Text("PageCaption") + ' ' + Text("PageLabel") + ' ' + Text("OfCaption") +
                         ' ' + Text("TotalPagesLabel");
    Write(line, page, text_font_, Qt::AlignRight);
    const double page_width = Metrics(text_font_).horizontalAdvance(page) + row_height_;
    Write(line.adjusted(0, 0, -page_width, 0), Text("NameLabel"), bold_font_, Qt::AlignLeft);
    line.moveTop(line.bottom());
    Write(line, Text("CommentLabel"), text_font_, Qt::AlignLeft);
    return line.bottom() + kGapHeight * row_height_;
  }

  void PaintColumnHeads(const Grid& table, double top) {
    double left = area_.left();
    for (int column = 0; column < table.Cols(); ++column) {
      const double width = table.ColWidth(column) * twip_;
      if (const Control* const head = layout_.Find("HeadLabel", column)) {
        const QRectF place(left, top, width, kColumnHeadHeight * row_height_);
        Write(place, LabelText(head->caption()), bold_font_, Alignment(table, column));
      }
      left += width;
    }
  }

  void PaintRow(const Grid& table, int row, double top) {
    double left = area_.left();
    for (int column = 0; column < table.Cols(); ++column) {
      const double width = table.ColWidth(column) * twip_;
      const QRectF cell(left, top, width, row_height_);
      left += width;
      // A column without a heading is a gap between others.
      if (layout_.Find("HeadLabel", column) == nullptr) continue;
      const CellColor shade = table.BackColor(row, column);
      if (shade.is_painted()) {
        painter_.fillRect(cell, FromBlueGreenRed(static_cast<unsigned>(shade.value())));
      }
      Frame(cell);
      const bool is_last = column == table.Cols() - 1 && Alignment(table, column) == Qt::AlignLeft;
      Write(cell, ToQt(table.TextMatrix(row, column)), is_last ? text_font_ : column_font_,
            Alignment(table, column), is_last ? 1.0 : pitch_);
    }
  }

  static Qt::Alignment Alignment(const Grid& table, int column) {
    return table.ColAlignment(column) == kAlignLeft ? Qt::AlignLeft : Qt::AlignHCenter;
  }

  void Frame(const QRectF& cell) {
    const QPen pen = painter_.pen();
    painter_.setPen(QPen(kGridLine, pen.widthF()));
    painter_.drawRect(cell);
    painter_.setPen(pen);
  }

  /// Writes a text on one line, its letters `narrowed` to that part of their width, or further
  /// where the place needs it.
  void Write(const QRectF& place, QString text, const QFont& font, Qt::Alignment alignment,
             double narrowed = 1.0) {
    if (text.isEmpty()) return;
    const QFontMetricsF metrics = Metrics(font);
    const double room = Inner(place.width());
    const double least = narrowed * kNarrowest;
    if (metrics.horizontalAdvance(text) * least > room) {
      text = metrics.elidedText(text, Qt::ElideRight, room / least);
    }
    const double natural = metrics.horizontalAdvance(text);
    narrowed = std::min(narrowed, room / natural);
    double left = place.left() + kPadding * row_height_;
    if (alignment == Qt::AlignHCenter) left += (room - natural * narrowed) / 2;
    if (alignment == Qt::AlignRight) left += room - natural * narrowed;
    const double baseline = place.center().y() + (metrics.ascent() - metrics.descent()) / 2;
    painter_.save();
    painter_.setFont(font);
    painter_.translate(left, baseline);
    painter_.scale(narrowed, 1);
    painter_.drawText(QPointF(), text);
    painter_.restore();
  }

  QPainter& painter_;
  const QRectF area_;
  const Form& layout_;
  double twip_ = 0;        // 1/1440 inch of the layout
  double row_height_ = 0;  // of the table
  double pitch_ = 1;       // how much narrower the letters of a column are
  QFont text_font_;
  QFont column_font_;
  QFont bold_font_;
  QFont heading_font_;
};

}  // namespace

void PaintSheet(QPainter& painter, const QRectF& area, const Form& layout) {
  SheetPainter(painter, area, layout).Paint();
}

}  // namespace quilla
