// A grid on the screen: rows of one height, columns in the proportions that the grid gives them,
// the last one taking what room is left. The mouse acts on the grid; nothing is edited in place.
#ifndef QUILLA_WINDOW_GRID_VIEW_H_
#define QUILLA_WINDOW_GRID_VIEW_H_

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPersistentModelIndex>
#include <QTableView>
#include <functional>
#include <utility>

#include "platform/grid.h"
#include "window/gate.h"
#include "window/grid_model.h"

namespace quilla {

class GridView : public QTableView {
  Q_OBJECT

 public:
  GridView(Gate& gate, Grid& grid, QWidget* parent);

  /// Gives the columns of a grid whose rows hold no headings these.
  void SetHeadings(const QStringList& headings);
  /// Has digits that are typed lead to the row of that address, where the rows are in the order of
  /// their addresses; `count` digits are a whole one.
  void SetAddressDigits(int count);
  /// Shows the numbers of the rows.
  void ShowLineNumbers();
  /// Has the texts of a column, which are sentences, not in fixed pitch as the others are.
  void SetProse(int column);
  /// Where the view has room, rows are higher, up to a measure, so that this many fill it.
  void set_rows_to_fill(int rows) { rows_to_fill_ = rows; }
  /// Rows are as high as the keys that stand beside them.
  void HoldKeysInRows();
  /// Says what the colours of the cells mean, to those who cannot see them.
  void set_meaning(std::function<QString(CellColor)> meaning) {
    model_->set_meaning(std::move(meaning));
  }
  /// Gives the view room for so many digits side by side and so many rows, whatever their size, and
  /// no more than that in the directions of `fixed`.
  void SetExtent(int digits, int rows, Qt::Orientations fixed);
  /// Brings the selection and the pointer shape in line with the grid.
  void SyncWithGrid();
  void keyboardSearch(const QString& digits) override;

 Q_SIGNALS:
  /// The rows have been given this height.
  void RowsFitted(int height);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;

 private:
  void SetUpHeading();
  void HideHeadingRows();
  void LayOutColumns();
  void FitRows();
  void FitExtent();
  /// Makes the cell with the cursor the current one, or else one that can be seen.
  void Land();
  void SetCurrentRow(int row);
  /// The other end of the rows that are selected up to this one, or the row itself.
  int AnchorOf(int row) const;
  void ShowRows(RowRange range);
  RowRange SelectedRows() const;
  RowRange MouseRows() const;
  void DragTo(int y);
  void EndDrag();
  void KeepInView(int row);
  /// Does what a drag with the mouse does, a click where both rows are one.
  void Drag(const QModelIndex& from, int to_row);
  /// The row at a height of the view, cut off at the first and the last.
  int RowNear(int y) const;

  static constexpr int kNone = -1;

  Gate& gate_;
  Grid& grid_;
  GridModel* const model_;
  int cursor_row_ = kNone;  // as it was when the program left off last
  bool is_lost_ = false;    // whether the cursor, or the row of the current cell, went elsewhere
  int press_row_ = kNone;
  int drag_row_ = kNone;              // where a drag stood last
  QPersistentModelIndex key_anchor_;  // where rows began to be selected with the keys
  QPoint pointer_;
  QBasicTimer scroll_timer_;
  int rows_to_fill_ = 0;
  bool holds_keys_ = false;  // in its rows
  QSize extent_;             // in digits and rows
  Qt::Orientations fixed_;
  int address_digits_ = 0;
  QString typed_;
  QElapsedTimer since_typed_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_GRID_VIEW_H_
