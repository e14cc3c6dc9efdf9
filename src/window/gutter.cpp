#include "window/gutter.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "window/cell_delegate.h"
#include "window/colors.h"
#include "window/grid_model.h"

namespace quilla {
namespace {

constexpr int kFewestGutterDigits = 3;

}  // namespace

Gutter::Gutter(QWidget* parent) : QHeaderView(Qt::Vertical, parent) {
  setSectionResizeMode(QHeaderView::Fixed);
  setMinimumSectionSize(1);
  setSectionsClickable(false);
}

QSize Gutter::sizeHint() const {
  const auto digits = std::max<qsizetype>(QString::number(count() - 1).size(), kFewestGutterDigits);
  return {static_cast<int>(digits) * QFontMetrics(Letters(true)).horizontalAdvance(u'0') +
              2 * kCellMargin,
          0};
}

// Qt's own header goes over all rows that it is told of, in sight or not.
void Gutter::setModel(QAbstractItemModel* model) {
  QHeaderView::setModel(model);
  connect(model, &QAbstractItemModel::dataChanged, this,
          [this](const QModelIndex& first, const QModelIndex& last) {
            RepaintRows(first.row(), last.row());
          });
}

void Gutter::RepaintRows(int first, int last) {
  const int top = std::max(first, visualIndexAt(0));
  const int bottom_on_view = visualIndexAt(viewport()->height() - 1);
  const int bottom = bottom_on_view < 0 ? last : std::min(last, bottom_on_view);
  if (top > bottom) return;
  const int start = sectionViewportPosition(top);
  const int end = sectionViewportPosition(bottom) + sectionSize(bottom);
  viewport()->update(0, start, viewport()->width(), end - start);
}

QFont Gutter::Letters(bool bold) const {
  QFont letters = font();
  letters.setBold(bold);
  return letters;
}

void Gutter::paintSection(QPainter* painter, const QRect& area, int row) const {
  const bool has_cursor = static_cast<const GridModel*>(model())->cursor().row() == row;
  painter->fillRect(area, palette().color(QPalette::Window));
  painter->setFont(Letters(has_cursor));
  painter->setPen(has_cursor ? palette().color(QPalette::WindowText) : QuietText(palette()));
  painter->drawText(area.adjusted(0, 0, -kCellMargin, 0), Qt::AlignRight | Qt::AlignVCenter,
                    QString::number(row));
}

}  // namespace quilla

#include "moc_gutter.cpp"
