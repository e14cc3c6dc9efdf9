// A grid of the models as an item model of Qt: a thin view that holds no cell of its own.
#ifndef QUILLA_WINDOW_GRID_MODEL_H_
#define QUILLA_WINDOW_GRID_MODEL_H_

#include <QAbstractTableModel>
#include <QBasicTimer>
#include <QStringList>
#include <functional>
#include <utility>

#include "platform/grid.h"

namespace quilla {

/// The column of the cell with the selection colour in a row, or -1.
int CursorColumn(const Grid& grid, int row);

class GridModel : public QAbstractTableModel, public GridObserver {
  Q_OBJECT
  Q_DISABLE_COPY_MOVE(GridModel)

 public:
  /// The grid must outlive the model, and has no other observer meanwhile.
  explicit GridModel(Grid& grid, QObject* parent = nullptr);
  ~GridModel() override;

  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// Gives a grid whose rows hold no headings these.
  void set_headings(const QStringList& headings) { headings_ = headings; }
  /// Says what the colours of this grid's cells mean, to those who cannot see them.
  void set_meaning(std::function<QString(CellColor)> meaning) { meaning_ = std::move(meaning); }
  const Grid& grid() const { return grid_; }
  /// The cell with the selection colour, or none.
  QModelIndex cursor() const;

 Q_SIGNALS:
  /// The cell with the selection colour has been painted in this row, or has moved to it.
  void CursorTouched(int row);

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  // Told by the grid.
  void PropertyChanged(Property /*property*/) override {}
  void RowsChanged(int first, int last) override;
  void RowPainted(int row) override;
  void BeginInsertRows(int first, int last) override;
  void EndInsertRows() override { endInsertRows(); }
  void BeginRemoveRows(int first, int last) override;
  void EndRemoveRows() override { endRemoveRows(); }

  void ReportTouchedRows();
  QVariant AlignmentOf(int column) const;
  bool HasCursor(int row) const { return CursorColumn(grid_, row) >= 0; }

  static constexpr int kNone = -1;

  Grid& grid_;
  QStringList headings_;
  std::function<QString(CellColor)> meaning_;
  // The rows touched since the last report, reported together when the handler is over.
  int touched_first_ = kNone;
  int touched_last_ = kNone;
  QBasicTimer report_timer_;
  int cursor_row_ = kNone;
  bool cursor_touched_ = false;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_GRID_MODEL_H_
