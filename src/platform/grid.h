// A table of texts with coloured cells, a current cell and a mouse selection of rows.
// Hidden tables are grids that no window shows.
#ifndef QUILLA_PLATFORM_GRID_H_
#define QUILLA_PLATFORM_GRID_H_

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"

namespace quilla {

/// The colour of a cell: the grid's own, the grid's selection colour, or a value painted.
class CellColor {
 public:
  constexpr CellColor() = default;
  /// A painted colour, blue-green-red: 0000FFh is pure red.
  constexpr explicit CellColor(std::int32_t value) : value_(value) {}

  constexpr bool is_painted() const { return value_ >= 0; }
  /// The painted value; only for a colour that is painted.
  constexpr std::int32_t value() const { return value_; }
  constexpr bool operator==(const CellColor&) const = default;

 private:
  std::int32_t value_ = -1;
};

inline constexpr CellColor kNormalColor;         // the grid's own, never painted or painted back
inline constexpr CellColor kSelectionColor{-2};  // the grid's selection colour

/// Rows `first` to `last` here and below, both ends included. What is begun is ended, with nothing
/// told between.
class GridObserver : public ControlObserver {
 public:
  /// Texts have changed, or all colours.
  virtual void RowsChanged(int first, int last) = 0;
  /// A cell of this row has been painted.
  virtual void RowPainted(int row) = 0;
  /// Empty rows are about to come as these rows; they have come.
  virtual void BeginInsertRows(int first, int last) = 0;
  virtual void EndInsertRows() = 0;
  /// These rows are about to go; they have gone.
  virtual void BeginRemoveRows(int first, int last) = 0;
  virtual void EndRemoveRows() = 0;
};

/// Rows of a grid, both ends included; none where the last is before the first.
struct RowRange {
  int first = 0;
  int last = -1;
};

/// How a grid shows its mouse selection: nothing reads it but the window.
enum class SelectionDisplay { kRows = 0, kCell = 1 };

/// The shape of the mouse pointer over a grid.
enum class GridPointer { kDefault = 0, kPick = 3 };

/// The alignment codes that columns are given; a column without one stands centred.
enum ColumnAlignment : int { kAlignLeft = 1, kAlignCentreTop = 3, kAlignCentre = 4 };

class Grid : public Control {
 public:
  /// The most rows that a grid holds.
  static constexpr int kMaxRows = 1'000'000;
  static constexpr int kMaxColumns = 16;

  Grid(Control* container, std::string name, int columns);
  ~Grid() override;

  int Rows() const { return rows_; }
  int Cols() const { return static_cast<int>(columns_.size()); }
  /// Adds empty rows at the end, or removes rows there. Fails with `kGridMemory` beyond kMaxRows
  /// or out of memory, the table being as before, and with `kOutsideTable` below 0.
  void SetRows(int rows);
  /// Inserts `count` empty rows before row `at`. Fails as SetRows does.
  void InsertRows(int at, int count);
  /// Adds one row at the end with a text in column 0.
  void AddItem(std::string_view text);
  /// Removes rows `first` to `last`. Fails with `kOutsideTable` where there are none.
  void RemoveRows(int first, int last);
  /// Empties all texts and takes off all colours; the number of rows stays.
  void Clear();

  /// Reading and writing a text does not move the current cell. A cell outside the table fails
  /// with `kOutsideTable`, here and below.
  const std::string& TextMatrix(int row, int column) const { return CellAt(row, column).text; }
  void SetTextMatrix(int row, int column, std::string_view text);
  /// Writes a text that is in parts, none of them of this cell.
  void JoinTextMatrix(int row, int column, std::initializer_list<std::string_view> parts);

  CellColor BackColor(int row, int column) const { return CellAt(row, column).back; }
  CellColor ForeColor(int row, int column) const { return CellAt(row, column).fore; }
  /// Painting makes the cell the current one, row first, then column.
  void PaintBack(int row, int column, CellColor back);
  void Paint(int row, int column, CellColor back, CellColor fore);

  /// The current cell, and the row where the mouse selection ends.
  int Row() const { return row_; }
  int Col() const { return column_; }
  int RowSel() const { return row_sel_; }
  /// Selecting from code: a change of the row, then a change of the column, each reported.
  void SelectRow(int row);
  void SelectColumn(int column);
  void SelectCell(int row, int column);
  /// The row-select value alone.
  void SetRowSel(int row) { row_sel_ = row; }

  /// Rows at the top that are headings: a press on them does not move the current cell.
  int FixedRows() const { return fixed_rows_; }
  void SetFixedRows(int rows) { fixed_rows_ = rows; }

  /// The cell of the last press.
  int MouseRow() const { return mouse_row_; }
  int MouseCol() const { return mouse_column_; }
  /// The user presses on a cell, lets go over a row, and the click follows. A failure of a handler
  /// ends that one of the three where it stands.
  void PressCell(int row, int column);
  void ReleaseAt(int row);
  void ClickCell();
  /// The user moves the pointer over a cell.
  void HoverCell(int row, int column);

  SelectionDisplay selection_display() const { return selection_display_; }
  void set_selection_display(SelectionDisplay display) { selection_display_ = display; }
  GridPointer pointer() const { return pointer_; }
  void set_pointer(GridPointer pointer) { Change(pointer_, pointer, Property::kPointer); }

  /// Widths in 1/1440 inch, 0 for a column out of sight and negative where none was given; and
  /// codes of ColumnAlignment.
  int ColWidth(int column) const { return widths_.at(static_cast<std::size_t>(column)); }
  int ColAlignment(int column) const { return alignments_.at(static_cast<std::size_t>(column)); }
  void SetColWidth(int column, int twips);
  void SetColAlignment(int column, int code);

  std::function<void()> MouseDown;
  std::function<void()> MouseUp;
  std::function<void()> Click;
  /// The pointer is over a cell of this column.
  std::function<void(int)> CellMouseMove;
  /// The current cell is another one than before.
  std::function<void()> CurrentCellChange;

  /// The rows that commands would take as selected, and those that they would if a drag ended over
  /// `row`. A grid without these has the rows that the mouse was dragged over.
  std::function<RowRange()> SelectedRows;
  std::function<RowRange(int row)> DraggedRows;

  GridObserver* grid_observer = nullptr;

 private:
  struct Cell {
    std::string text;
    CellColor back;
    CellColor fore;
  };

  const Cell& CellAt(int row, int column) const {
    if (row < 0 || row >= rows_ || column < 0 || column >= Cols()) FailOutside();
    return columns_[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)];
  }
  Cell& CellAt(int row, int column) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): the grid is not constant here
    return const_cast<Cell&>(static_cast<const Grid*>(this)->CellAt(row, column));
  }
  [[noreturn]] static void FailOutside();
  void MakeRoom(int rows);
  void MoveTo(int row, int column);
  void KeepCurrentCellInside();
  void TextChanged(int row) const {
    if (grid_observer != nullptr) grid_observer->RowsChanged(row, row);
  }
  void RowPainted(int row) const {
    if (grid_observer != nullptr) grid_observer->RowPainted(row);
  }

  int rows_ = 0;
  // Column by column: the passes over all rows are those that look for labels and origins.
  std::vector<std::vector<Cell>> columns_;
  int row_ = 0;
  int column_ = 0;
  int row_sel_ = 0;
  int mouse_row_ = 0;
  int mouse_column_ = 0;
  int fixed_rows_ = 0;
  SelectionDisplay selection_display_ = SelectionDisplay::kRows;
  GridPointer pointer_ = GridPointer::kDefault;
  std::array<int, kMaxColumns> widths_{};
  std::array<int, kMaxColumns> alignments_{};
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_GRID_H_
