#include "platform/grid.h"

#include <algorithm>
#include <new>
#include <utility>

#include "platform/dispatch.h"
#include "platform/failure.h"

namespace quilla {
namespace {

constexpr int kNoWidth = -1;

}  // namespace

Grid::Grid(Control* container, std::string name, int columns)
    : Control(container, std::move(name)), columns_(static_cast<std::size_t>(columns)) {
  widths_.fill(kNoWidth);
}

Grid::~Grid() = default;

void Grid::SetRows(int rows) {
  if (rows > Rows()) {
    InsertRows(Rows(), rows - Rows());
  } else if (rows < 0) {
    throw Failure(ErrorNumber::kOutsideTable);
  } else if (rows < Rows()) {
    RemoveRows(rows, Rows() - 1);
  }
}

void Grid::InsertRows(int at, int count) {
  if (at < 0 || at > Rows() || count < 0) throw Failure(ErrorNumber::kOutsideTable);
  if (count > kMaxRows - Rows()) throw Failure(ErrorNumber::kGridMemory);
  if (count == 0) return;
  MakeRoom(Rows() + count);
  if (grid_observer != nullptr) grid_observer->BeginInsertRows(at, at + count - 1);
  for (std::vector<Cell>& cells : columns_) {
    if (at == rows_) {
      cells.resize(cells.size() + static_cast<std::size_t>(count));  // quicker than copies
    } else {
      cells.insert(cells.begin() + at, static_cast<std::size_t>(count), Cell{});
    }
  }
  rows_ += count;
  if (grid_observer != nullptr) grid_observer->EndInsertRows();
}

// Ahead of the change, so that nothing fails between its beginning and its end.
void Grid::MakeRoom(int rows) {
  const auto needed = static_cast<std::size_t>(rows);
  try {
    for (std::vector<Cell>& cells : columns_) {
      if (needed > cells.capacity()) cells.reserve(std::max(needed, 2 * cells.capacity()));
    }
  } catch (const std::bad_alloc&) {
    throw Failure(ErrorNumber::kGridMemory);
  }
}

void Grid::AddItem(std::string_view text) {
  InsertRows(Rows(), 1);
  SetTextMatrix(Rows() - 1, 0, text);
}

void Grid::RemoveRows(int first, int last) {
  if (first < 0 || last >= Rows() || first > last) throw Failure(ErrorNumber::kOutsideTable);
  if (grid_observer != nullptr) grid_observer->BeginRemoveRows(first, last);
  for (std::vector<Cell>& cells : columns_) {
    cells.erase(cells.begin() + first, cells.begin() + last + 1);
  }
  rows_ -= last - first + 1;
  KeepCurrentCellInside();
  if (grid_observer != nullptr) grid_observer->EndRemoveRows();
}

void Grid::Clear() {
  for (std::vector<Cell>& cells : columns_) {
    for (Cell& cell : cells) {
      cell.text.clear();
      cell.back = kNormalColor;
      cell.fore = kNormalColor;
    }
  }
  if (grid_observer != nullptr && Rows() > 0) grid_observer->RowsChanged(0, Rows() - 1);
}

void Grid::FailOutside() { throw Failure(ErrorNumber::kOutsideTable); }

void Grid::SetTextMatrix(int row, int column, std::string_view text) {
  std::string& cell = CellAt(row, column).text;
  if (cell == text) return;
  if (cell.empty()) {
    cell.append(text);  // quicker than to assign
  } else {
    cell.assign(text);
  }
  TextChanged(row);
}

void Grid::JoinTextMatrix(int row, int column, std::initializer_list<std::string_view> parts) {
  std::string& cell = CellAt(row, column).text;
  cell.clear();
  for (const std::string_view part : parts) cell.append(part);
  TextChanged(row);
}

void Grid::PaintBack(int row, int column, CellColor back) {
  SelectCell(row, column);
  CellAt(row, column).back = back;
  RowPainted(row);
}

void Grid::Paint(int row, int column, CellColor back, CellColor fore) {
  SelectCell(row, column);
  CellAt(row, column).back = back;
  CellAt(row, column).fore = fore;
  RowPainted(row);
}

void Grid::SelectRow(int row) {
  CellAt(row, 0);
  row_sel_ = row;
  MoveTo(row, column_);
}

void Grid::SelectColumn(int column) {
  CellAt(row_, column);
  MoveTo(row_, column);
}

void Grid::SelectCell(int row, int column) {
  SelectRow(row);
  SelectColumn(column);
}

void Grid::MoveTo(int row, int column) {
  if (row_ == row && column_ == column) return;
  row_ = row;
  column_ = column;
  if (CurrentCellChange) CurrentCellChange();
}

void Grid::KeepCurrentCellInside() {
  row_ = std::clamp(row_, 0, std::max(0, Rows() - 1));
  row_sel_ = std::clamp(row_sel_, 0, std::max(0, Rows() - 1));
}

void Grid::PressCell(int row, int column) {
  CellAt(row, column);
  mouse_row_ = row;
  mouse_column_ = column;
  CarryOut([&] {
    if (row >= fixed_rows_) {
      row_sel_ = row;
      MoveTo(row, column);
    }
    if (MouseDown) MouseDown();
  });
}

void Grid::ReleaseAt(int row) {
  row_sel_ = std::clamp(row, std::min(fixed_rows_, Rows() - 1), Rows() - 1);
  Dispatch(MouseUp);
}

void Grid::ClickCell() { Dispatch(Click); }

void Grid::HoverCell(int row, int column) {
  CellAt(row, column);
  Dispatch(CellMouseMove, column);
}

void Grid::SetColWidth(int column, int twips) {
  widths_.at(static_cast<std::size_t>(column)) = twips;
}

void Grid::SetColAlignment(int column, int code) {
  alignments_.at(static_cast<std::size_t>(column)) = code;
}

}  // namespace quilla
