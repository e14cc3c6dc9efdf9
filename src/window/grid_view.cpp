#include "window/grid_view.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>
#include <algorithm>
#include <utility>

#include "window/cell_delegate.h"

namespace quilla {
namespace {

constexpr int kRowPadding = 6;
constexpr int kScrollIntervalMs = 40;
/// A column of this width must hold one digit.
constexpr double kTwipsPerDigit = 90;
/// The width of a column that was given none.
constexpr int kUsualTwips = 1080;
/// Rows kept in view beyond the cursor.
constexpr int kRowsAhead = 2;

int TwipsOf(const Grid& grid, int column) {
  return grid.ColWidth(column) >= 0 ? grid.ColWidth(column) : kUsualTwips;
}

}  // namespace

GridView::GridView(Gate& gate, Grid& grid, QWidget* parent)
    : QTableView(parent), gate_(gate), grid_(grid) {
  auto* const model = new GridModel(grid, this);
  setItemDelegate(new CellDelegate(grid, this));
  SetUpHeading();
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setMinimumSectionSize(1);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(1);
  setSelectionMode(NoSelection);
  setEditTriggers(NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setFocusPolicy(Qt::TabFocus);
  setMouseTracking(true);
  viewport()->setMouseTracking(true);
  FitRows();
  setModel(model);
  HideHeadingRows();
  connect(model, &GridModel::rowsInserted, this, &GridView::HideHeadingRows);
  connect(model, &GridModel::CursorTouched, this, &GridView::KeepInView);
  connect(&gate_, &Gate::Left, this, &GridView::SyncWithGrid);
}

// Rows that are headings stand in the header, where they stay when the rest scrolls.
void GridView::SetUpHeading() {
  QHeaderView& heading = *horizontalHeader();
  heading.setVisible(grid_.FixedRows() > 0);
  heading.setHighlightSections(false);
  heading.setSectionsClickable(true);
  QFont font = heading.font();
  font.setBold(true);
  heading.setFont(font);
  connect(&heading, &QHeaderView::sectionClicked, this, [this](int column) {
    gate_.Enter([&] {
      grid_.PressCell(0, column);
      grid_.ReleaseAt(0);
      grid_.ClickCell();
    });
  });
}

void GridView::HideHeadingRows() {
  for (int row = 0; row < std::min(grid_.FixedRows(), grid_.Rows()); ++row) {
    setRowHidden(row, true);
  }
}

std::vector<int> GridView::ColumnWidths() const {
  std::vector<int> widths;
  widths.reserve(static_cast<std::size_t>(grid_.Cols()));
  for (int column = 0; column < grid_.Cols(); ++column) widths.push_back(columnWidth(column));
  return widths;
}

void GridView::FitRows() {
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
  horizontalHeader()->setFixedHeight(fontMetrics().height() + kRowPadding);
}

void GridView::LayOutColumns() {
  int total = 0;
  for (int column = 0; column < grid_.Cols(); ++column) total += TwipsOf(grid_, column);
  const double needed = fontMetrics().horizontalAdvance(u'0') / kTwipsPerDigit;
  const int room = viewport()->width();
  const double scale = std::max(needed, static_cast<double>(room) / total);
  int left = room;
  for (int column = 0; column + 1 < grid_.Cols(); ++column) {
    const int width = qRound(TwipsOf(grid_, column) * scale);
    setColumnHidden(column, width == 0);
    setColumnWidth(column, width);
    left -= width;
  }
  setColumnWidth(grid_.Cols() - 1, std::max(left, 1));
  Q_EMIT ColumnsLaidOut();
}

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  LayOutColumns();
}

void GridView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  FitRows();
  LayOutColumns();
}

void GridView::KeepInView(int row) {
  const int ahead = std::min(row + kRowsAhead, grid_.Rows() - 1);
  scrollTo(model()->index(ahead, 0));
  scrollTo(model()->index(row, 0));
}

void GridView::SyncWithGrid() {
  const auto shape =
      grid_.pointer() == GridPointer::kPick ? Qt::PointingHandCursor : Qt::ArrowCursor;
  if (viewport()->cursor().shape() != shape) viewport()->setCursor(shape);
  if (press_row_ != kNone || key_anchor_.isValid()) return;
  const bool shows_rows =
      grid_.selection_display() == SelectionDisplay::kRows && grid_.Row() != grid_.RowSel();
  if (shows_rows) {
    ShowRows(grid_.Row(), grid_.RowSel());
  } else if (selectionModel()->hasSelection()) {
    clearSelection();
  }
}

void GridView::ShowRows(int from, int to) {
  const auto [first, last] = std::minmax(from, to);
  const QItemSelection rows(model()->index(first, 0), model()->index(last, grid_.Cols() - 1));
  selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
}

int GridView::RowNear(int y) const {
  if (y < 0) return std::max(0, rowAt(0));
  const int row = rowAt(std::min(y, viewport()->height() - 1));
  return row >= 0 ? row : grid_.Rows() - 1;
}

void GridView::mousePressEvent(QMouseEvent* event) {
  const QModelIndex cell = indexAt(event->pos());
  if (event->button() != Qt::LeftButton || !cell.isValid()) return;
  press_row_ = cell.row();
  press_column_ = cell.column();
  gate_.Enter([&] { grid_.PressCell(press_row_, press_column_); });
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
  pointer_ = event->pos();
  if (press_row_ != kNone) {
    DragTo(pointer_.y());
    const bool outside = pointer_.y() < 0 || pointer_.y() >= viewport()->height();
    if (!outside) {
      scroll_timer_.stop();
    } else if (!scroll_timer_.isActive()) {
      scroll_timer_.start(kScrollIntervalMs, this);
    }
    return;
  }
  const QModelIndex cell = indexAt(pointer_);
  if (!cell.isValid() || !grid_.IsEnabled()) return;
  gate_.Enter([&] { grid_.HoverCell(cell.row(), cell.column()); });
}

void GridView::DragTo(int y) {
  const int row = RowNear(y);
  if (grid_.selection_display() != SelectionDisplay::kRows) return;
  if (row != press_row_ || selectionModel()->hasSelection()) ShowRows(press_row_, row);
}

void GridView::timerEvent(QTimerEvent* event) {
  if (event->timerId() != scroll_timer_.timerId()) {
    QTableView::timerEvent(event);
    return;
  }
  const int step = pointer_.y() < 0 ? -1 : 1;
  verticalScrollBar()->setValue(verticalScrollBar()->value() +
                                step * verticalScrollBar()->singleStep());
  DragTo(pointer_.y());
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || press_row_ == kNone) return;
  scroll_timer_.stop();
  press_row_ = kNone;
  const int row = RowNear(event->pos().y());
  gate_.Enter([&] {
    grid_.ReleaseAt(row);
    grid_.ClickCell();
  });
}

void GridView::focusInEvent(QFocusEvent* event) {
  if (!currentIndex().isValid() && grid_.Rows() > 0) {
    selectionModel()->setCurrentIndex(model()->index(grid_.Row(), grid_.Col()),
                                      QItemSelectionModel::NoUpdate);
  }
  QTableView::focusInEvent(event);
}

void GridView::focusOutEvent(QFocusEvent* event) {
  key_anchor_ = QPersistentModelIndex();
  SyncWithGrid();
  QTableView::focusOutEvent(event);
}

void GridView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && currentIndex().isValid()) {
    Drag(currentIndex(), currentIndex().row());
    return;
  }
  const QModelIndex before = currentIndex();
  QTableView::keyPressEvent(event);
  if ((event->modifiers() & Qt::ShiftModifier) == 0 || currentIndex().row() == before.row()) return;
  if (!key_anchor_.isValid()) key_anchor_ = before;
  ShowRows(key_anchor_.row(), currentIndex().row());
}

// Letting go of Shift ends a selection of rows as letting go of the mouse does.
void GridView::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Shift && key_anchor_.isValid()) {
    const QModelIndex from = std::exchange(key_anchor_, QPersistentModelIndex());
    Drag(from, currentIndex().row());
    return;
  }
  QTableView::keyReleaseEvent(event);
}

void GridView::Drag(const QModelIndex& from, int to_row) {
  const int row = from.row();
  const int column = from.column();
  gate_.Enter([&] {
    grid_.PressCell(row, column);
    grid_.ReleaseAt(to_row);
    grid_.ClickCell();
  });
}

}  // namespace quilla
