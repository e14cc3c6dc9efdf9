#include "program/rows.h"

#include <algorithm>

namespace quilla {
namespace {

/// From this row on, DeleteRows cuts the table.
constexpr int kLeastRowToCut = 20;

}  // namespace

Rows::Rows(Session& session) : session_(session) {
  session_.Table1.CurrentCellChange = [this] { Table1_CurrentCellChange(); };
}

void Rows::SetRows(int rows) {
  session_.Table1.SetRows(rows);
  session_.StringTable.SetRows(rows);
}

void Rows::AddRows(int row) {
  if (row < session_.Table1.Rows() - kSpareRows) return;
  SetRows(std::max(row + kSpareRows, kLeastRows));
}

void Rows::DeleteRows(int row) {
  if (row >= kLeastRowToCut) SetRows(row + kSpareRows);
}

int Rows::InsertLine(int start_row, int lines) {
  session_.SelectionBottom = start_row + lines;
  if (session_.CurrentRow >= start_row) session_.CurrentRow += lines;
  session_.Table1.InsertRows(start_row, lines);
  session_.StringTable.InsertRows(start_row, lines);
  session_.LastLine += lines;
  return start_row + lines;
}

void Rows::NextLine(int next_row) {
  Grid& table = session_.Table1;
  session_.CurrentRow = std::min(session_.CurrentRow, table.Rows() - 1);
  table.Paint(session_.CurrentRow, kMnemonicColumn, kNormalColor, kNormalColor);
  if (next_row >= session_.LastLine) AddRows(next_row);
  if (session_.IsOrigin(next_row)) next_row = InsertLine(next_row, 1);
  session_.CurrentRow = next_row;
  table.Paint(next_row, kMnemonicColumn, kSelectionColor, kSelectionColor);
  session_.SelectionTop = next_row;
  session_.SelectionBottom = next_row;
}

void Rows::Table1_CurrentCellChange() {
  const Grid& table = session_.Table1;
  if (table.Row() > session_.LastLine && !table.TextMatrix(table.Row(), table.Col()).empty()) {
    session_.LastLine = table.Row();
  }
}

}  // namespace quilla
