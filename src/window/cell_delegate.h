// Paints the cells of a grid: the colour that the grid gives a cell, text that can be read on it,
// and a small mark beside it, so that no cell is told from another by its colour alone.
#ifndef QUILLA_WINDOW_CELL_DELEGATE_H_
#define QUILLA_WINDOW_CELL_DELEGATE_H_

#include <QAbstractItemDelegate>

#include "platform/grid.h"

namespace quilla {

/// The room on either side of a cell's text, in pixels.
inline constexpr int kCellMargin = 5;

class CellDelegate : public QAbstractItemDelegate {
  Q_OBJECT

 public:
  explicit CellDelegate(const Grid& grid, QObject* parent)
      : QAbstractItemDelegate(parent), grid_(grid) {}

  /// Has the texts of a column, which are sentences, not in fixed pitch as the others are.
  void set_prose_column(int column) { prose_column_ = column; }

  void paint(QPainter* painter, const QStyleOptionViewItem& cell,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  /// Shows the whole text of a cell that is too narrow for it.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  QFont FontOf(const QStyleOptionViewItem& option, const QModelIndex& index) const;

  const Grid& grid_;
  int prose_column_ = -1;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_CELL_DELEGATE_H_
