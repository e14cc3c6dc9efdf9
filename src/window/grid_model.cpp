#include "window/grid_model.h"

#include <QTimerEvent>
#include <algorithm>
#include <utility>

#include "window/colors.h"
#include "window/qt_text.h"

namespace quilla {

int CursorColumn(const Grid& grid, int row) {
  for (int column = 0; column < grid.Cols(); ++column) {
    if (grid.BackColor(row, column) == kSelectionColor) return column;
  }
  return -1;
}

GridModel::GridModel(Grid& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid), meaning_(MeaningOf) {
  grid_.grid_observer = this;
  for (int row = 0; row < grid_.Rows() && cursor_row_ == kNone; ++row) {
    if (HasCursor(row)) cursor_row_ = row;
  }
}

GridModel::~GridModel() { grid_.grid_observer = nullptr; }

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : grid_.Rows();
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : grid_.Cols();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (role == Qt::DisplayRole) {
    return ToQt(grid_.TextMatrix(index.row(), index.column()));
  }
  if (role == Qt::TextAlignmentRole) return AlignmentOf(index.column());
  if (role == Qt::AccessibleDescriptionRole) {
    return meaning_(grid_.BackColor(index.row(), index.column()));
  }
  return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) return role == Qt::DisplayRole ? QVariant(section) : QVariant();
  if (role == Qt::TextAlignmentRole) return AlignmentOf(section);
  if (role != Qt::DisplayRole) return {};
  if (section < headings_.size()) return headings_[section];
  return grid_.FixedRows() > 0 && grid_.Rows() > 0 ? ToQt(grid_.TextMatrix(0, section))
                                                   : QVariant();
}

QVariant GridModel::AlignmentOf(int column) const {
  const bool left = grid_.ColAlignment(column) == kAlignLeft;
  return QVariant::fromValue(Qt::AlignVCenter | (left ? Qt::AlignLeft : Qt::AlignHCenter));
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                         : Qt::NoItemFlags;
}

QModelIndex GridModel::cursor() const {
  if (cursor_row_ == kNone || cursor_row_ >= grid_.Rows()) return {};
  const int column = CursorColumn(grid_, cursor_row_);
  return column < 0 ? QModelIndex() : index(cursor_row_, column);
}

void GridModel::RowsChanged(int first, int last) {
  if (touched_first_ == kNone) {
    touched_first_ = first;
    touched_last_ = last;
    if (!report_timer_.isActive()) report_timer_.start(0, this);
  } else {
    touched_first_ = std::min(touched_first_, first);
    touched_last_ = std::max(touched_last_, last);
  }
  if (first == last && first == cursor_row_ && HasCursor(first)) cursor_touched_ = true;
}

void GridModel::RowPainted(int row) {
  if (HasCursor(row)) cursor_row_ = row;
  RowsChanged(row, row);
}

void GridModel::BeginInsertRows(int first, int last) {
  ReportTouchedRows();
  if (cursor_row_ >= first) cursor_row_ += last - first + 1;
  beginInsertRows({}, first, last);
}

void GridModel::BeginRemoveRows(int first, int last) {
  ReportTouchedRows();
  if (cursor_row_ > last) {
    cursor_row_ -= last - first + 1;
  } else if (cursor_row_ >= first) {
    cursor_row_ = kNone;
  }
  beginRemoveRows({}, first, last);
}

void GridModel::timerEvent(QTimerEvent* event) {
  if (event->timerId() != report_timer_.timerId()) return;
  report_timer_.stop();
  ReportTouchedRows();
  if (std::exchange(cursor_touched_, false) && cursor_row_ != kNone) {
    Q_EMIT CursorTouched(cursor_row_);
  }
}

void GridModel::ReportTouchedRows() {
  if (touched_first_ == kNone) return;
  const int first = std::exchange(touched_first_, kNone);
  const int last = std::min(touched_last_, grid_.Rows() - 1);
  if (first > last) return;
  Q_EMIT dataChanged(index(first, 0), index(last, grid_.Cols() - 1));
  if (first < grid_.FixedRows()) Q_EMIT headerDataChanged(Qt::Horizontal, 0, grid_.Cols() - 1);
}

}  // namespace quilla

#include "moc_grid_model.cpp"
