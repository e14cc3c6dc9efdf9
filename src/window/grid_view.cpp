#include "window/grid_view.h"

#include <QApplication>
#include <QCursor>
#include <QFontDatabase>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>
#include <algorithm>
#include <utility>

#include "window/cell_delegate.h"
#include "window/gutter.h"
#include "window/key_button.h"

namespace quilla {
namespace {

constexpr int kRowPadding = 3;
constexpr int kScrollIntervalMs = 40;
/// A longer pause ends the typing of an address.
constexpr int kLongestPauseMs = 1000;
constexpr int kHexadecimal = 16;
/// A column of this width must hold an opcode of three bytes.
constexpr double kOpcodeTwips = 1080;
constexpr int kOpcodeDigits = 12;
/// The greatest height of a row that has room, in heights of its letters.
constexpr double kHighestRow = 1.7;
/// The width of a column that was given none.
constexpr int kUsualTwips = 1080;
/// Rows kept in view beyond the cursor.
constexpr int kRowsAhead = 2;

int TwipsOf(const Grid& grid, int column) {
  return grid.ColWidth(column) >= 0 ? grid.ColWidth(column) : kUsualTwips;
}

/// A font that has its family from another one and all else from where it is used.
QFont InFamilyOf(const QFont& other) {
  QFont font;
  font.setFamily(other.family());
  return font;
}

RowRange Between(int one, int other) { return {std::min(one, other), std::max(one, other)}; }

}  // namespace

GridView::GridView(Gate& gate, Grid& grid, QWidget* parent)
    : QTableView(parent), gate_(gate), grid_(grid), model_(new GridModel(grid, this)) {
  setItemDelegate(new CellDelegate(grid, this));
  setFont(InFamilyOf(QFontDatabase::systemFont(QFontDatabase::FixedFont)));
  setVerticalHeader(new Gutter(this));
  verticalHeader()->setFont(InFamilyOf(QApplication::font()));
  SetUpHeading();
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setMinimumSectionSize(1);
  verticalHeader()->hide();
  setCornerButtonEnabled(false);
  setVerticalScrollMode(ScrollPerPixel);
  viewport()->setBackgroundRole(QPalette::Window);  // of what lies below the last row
  setSelectionMode(NoSelection);
  setEditTriggers(NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setFocusPolicy(Qt::TabFocus);
  setMouseTracking(true);
  viewport()->setMouseTracking(true);
  FitRows();
  setModel(model_);
  HideHeadingRows();
  connect(model_, &GridModel::rowsInserted, this, &GridView::HideHeadingRows);
  connect(model_, &GridModel::CursorTouched, this, &GridView::KeepInView);
  connect(&gate_, &Gate::Left, this, &GridView::SyncWithGrid);
}

// Rows that are headings stand in the header, where they stay when the rest scrolls.
void GridView::SetUpHeading() {
  QHeaderView& heading = *horizontalHeader();
  heading.setVisible(grid_.FixedRows() > 0);
  heading.setHighlightSections(false);
  heading.setSectionsClickable(true);
  QFont letters = InFamilyOf(QApplication::font());
  letters.setBold(true);
  heading.setFont(letters);
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

void GridView::SetHeadings(const QStringList& headings) {
  model_->set_headings(headings);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->show();
}

void GridView::SetAddressDigits(int count) {
  address_digits_ = count;
  setFocusPolicy(Qt::StrongFocus);
}

void GridView::ShowLineNumbers() { verticalHeader()->show(); }

void GridView::SetProse(int column) {
  static_cast<CellDelegate*>(itemDelegate())->set_prose_column(column);
}

void GridView::FitRows() {
  const int letters = fontMetrics().height();
  int height = holds_keys_ ? KeyHeight(fontMetrics()) : letters + kRowPadding;
  if (rows_to_fill_ > 0) {
    const int filling = (viewport()->height() + rows_to_fill_ - 1) / rows_to_fill_;
    height = std::max(height, std::min(filling, qRound(letters * kHighestRow)));
  }
  horizontalHeader()->setFixedHeight(letters + kRowPadding);
  if (verticalHeader()->defaultSectionSize() == height) return;
  verticalHeader()->setDefaultSectionSize(height);
  Q_EMIT RowsFitted(height);
}

void GridView::HoldKeysInRows() {
  holds_keys_ = true;
  FitRows();
}

void GridView::SetExtent(int digits, int rows, Qt::Orientations fixed) {
  extent_ = {digits, rows};
  fixed_ = fixed;
  FitExtent();
}

void GridView::FitExtent() {
  if (extent_.isEmpty()) return;
  const int frame = 2 * frameWidth();
  const QSize size(extent_.width() * fontMetrics().horizontalAdvance(u'0') + frame,
                   extent_.height() * verticalHeader()->defaultSectionSize() +
                       horizontalHeader()->minimumHeight() + frame);
  setMinimumSize(size);
  if (fixed_.testFlag(Qt::Horizontal)) setMaximumWidth(size.width());
  if (fixed_.testFlag(Qt::Vertical)) setMaximumHeight(size.height());
}

void GridView::LayOutColumns() {
  int total = 0;
  for (int column = 0; column < grid_.Cols(); ++column) total += TwipsOf(grid_, column);
  const int opcode = fontMetrics().horizontalAdvance(QString(kOpcodeDigits, u'0'));
  const double needed = (opcode + 2 * (kCellMargin + 1)) / kOpcodeTwips;
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
}

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  FitRows();
  LayOutColumns();
}

void GridView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  FitRows();
  FitExtent();
  LayOutColumns();
}

void GridView::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) {
  const int row = currentIndex().row();
  is_lost_ = is_lost_ || (row >= first && row <= last);
  QTableView::rowsAboutToBeRemoved(parent, first, last);
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
  const int cursor_row = model_->cursor().row();
  is_lost_ = std::exchange(cursor_row_, cursor_row) != cursor_row || is_lost_;
  if (press_row_ != kNone || key_anchor_.isValid()) return;
  const bool follows = std::exchange(is_lost_, false) && model_->cursor().isValid();
  if (follows || (hasFocus() && !currentIndex().isValid())) Land();
  ShowRows(SelectedRows());
}

RowRange GridView::SelectedRows() const {
  return grid_.SelectedRows ? grid_.SelectedRows() : MouseRows();
}

int GridView::AnchorOf(int row) const {
  const RowRange rows = SelectedRows();
  if (rows.first > rows.last) return row;
  if (row == rows.first) return rows.last;
  return row == rows.last ? rows.first : row;
}

RowRange GridView::MouseRows() const {
  const bool shows_rows =
      grid_.selection_display() == SelectionDisplay::kRows && grid_.Row() != grid_.RowSel();
  if (!shows_rows) return {};
  return Between(grid_.Row(), grid_.RowSel());
}

void GridView::ShowRows(RowRange range) {
  QItemSelection rows;
  if (range.first <= range.last) {
    rows.select(model_->index(range.first, 0), model_->index(range.last, grid_.Cols() - 1));
  }
  if (rows != selectionModel()->selection()) {
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
  }
}

int GridView::RowNear(int y) const {
  if (y < 0) return std::max(0, rowAt(0));
  const int row = rowAt(std::min(y, viewport()->height() - 1));
  return row >= 0 ? row : grid_.Rows() - 1;
}

void GridView::mousePressEvent(QMouseEvent* event) {
  const QModelIndex cell = indexAt(event->pos());
  if (event->button() != Qt::LeftButton || !cell.isValid()) return;
  if (press_row_ != kNone) EndDrag();
  press_row_ = cell.row();
  drag_row_ = press_row_;
  gate_.Enter([&] { grid_.PressCell(cell.row(), cell.column()); });
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
  pointer_ = event->pos();
  // A message box that opened at the press has taken what let go.
  if (press_row_ != kNone && !event->buttons().testFlag(Qt::LeftButton)) EndDrag();
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
  drag_row_ = RowNear(y);
  if (grid_.DraggedRows) {
    ShowRows(grid_.DraggedRows(drag_row_));
  } else if (drag_row_ != press_row_ || selectionModel()->hasSelection()) {
    ShowRows(Between(press_row_, drag_row_));
  }
}

void GridView::EndDrag() {
  scroll_timer_.stop();
  if (!model_->cursor().isValid()) SetCurrentRow(drag_row_);
  press_row_ = kNone;
  gate_.Enter([&] {
    grid_.ReleaseAt(drag_row_);
    grid_.ClickCell();
  });
}

void GridView::timerEvent(QTimerEvent* event) {
  if (event->timerId() != scroll_timer_.timerId()) {
    QTableView::timerEvent(event);
    return;
  }
  if (!QApplication::mouseButtons().testFlag(Qt::LeftButton)) {
    EndDrag();
    return;
  }
  const int step = pointer_.y() < 0 ? -1 : 1;
  verticalScrollBar()->setValue(verticalScrollBar()->value() +
                                step * verticalScrollBar()->singleStep());
  DragTo(pointer_.y());
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || press_row_ == kNone) return;
  drag_row_ = RowNear(event->pos().y());
  EndDrag();
}

void GridView::Land() {
  QModelIndex place = model_->cursor();
  if (!place.isValid()) {
    int column = grid_.Col();
    while (column + 1 < grid_.Cols() && isColumnHidden(column)) ++column;
    place = model_->index(std::max(grid_.Row(), grid_.FixedRows()), column);
  }
  selectionModel()->setCurrentIndex(place, QItemSelectionModel::NoUpdate);
}

void GridView::SetCurrentRow(int row) {
  selectionModel()->setCurrentIndex(model_->index(row, 0), QItemSelectionModel::NoUpdate);
}

// Qt moves to hidden cells too, at the ends.
QModelIndex GridView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const QModelIndex place = QTableView::moveCursor(action, modifiers);
  const bool hidden = isRowHidden(place.row()) || isColumnHidden(place.column());
  return hidden ? currentIndex() : place;
}

void GridView::focusInEvent(QFocusEvent* event) {
  const Qt::FocusReason reason = event->reason();
  const bool is_back = reason == Qt::ActiveWindowFocusReason || reason == Qt::MenuBarFocusReason ||
                       reason == Qt::PopupFocusReason;
  const bool comes_to_cursor = !is_back && model_->cursor().isValid();
  if (reason == Qt::MouseFocusReason && !comes_to_cursor) {
    // Nothing moves away from under the pointer.
    if (!currentIndex().isValid()) SetCurrentRow(RowNear(mapFromGlobal(QCursor::pos()).y()));
  } else {
    if (comes_to_cursor || !currentIndex().isValid()) Land();
    scrollTo(currentIndex());
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
  if (!key_anchor_.isValid()) {
    // Where there is a cursor, rows are selected in its column.
    const QModelIndex cursor = model_->cursor();
    const int column = cursor.isValid() ? cursor.column() : before.column();
    key_anchor_ = model_->index(AnchorOf(before.row()), column);
  }
  ShowRows(Between(key_anchor_.row(), currentIndex().row()));
}

// Digits typed in one go are an address, whose row is the current one then.
void GridView::keyboardSearch(const QString& digits) {
  if (address_digits_ == 0) return QTableView::keyboardSearch(digits);
  if (!since_typed_.isValid() || since_typed_.elapsed() > kLongestPauseMs) typed_.clear();
  since_typed_.start();
  bool is_number = false;
  const QString typed = (typed_ + digits).right(address_digits_);
  const int row = typed.toInt(&is_number, kHexadecimal) + grid_.FixedRows();
  if (!is_number || row >= grid_.Rows()) return;
  typed_ = typed;
  SetCurrentRow(row);
  scrollTo(currentIndex(), PositionAtCenter);
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

#include "moc_grid_view.cpp"
