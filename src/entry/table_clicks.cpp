#include "entry/table_clicks.h"

#include <algorithm>
#include <vector>

#include "isa/instruction_set.h"
#include "program/opcode_cell.h"

namespace quilla {

TableClicks::TableClicks(Session& session, StateMachine& states, Rows& rows, Origins& origins,
                         InstructionEntry& instructions, DataEntry& data)
    : session_(session),
      table_(session.Table1),
      states_(states),
      rows_(rows),
      origins_(origins),
      instructions_(instructions),
      data_(data) {
  table_.MouseDown = [this] { Table1_MouseDown(); };
  table_.MouseUp = [this] { Table1_MouseUp(); };
  table_.CellMouseMove = [this](int column) { Table1_MouseMove(column); };
  table_.Click = [this] { Table1_Click(); };
  table_.SelectedRows = [this] { return SelectedRows(); };
  table_.DraggedRows = [this](int row) { return DraggedRows(row); };
  states_.SetTableTask({PanelState::kReady, PanelState::kDataReady},
                       {.Clicked = [this](int row, int column) { ClickWhenReady(row, column); },
                        .LiveColumns = {kMnemonicColumn}});
}

void TableClicks::Table1_MouseDown() {
  if (table_.Col() != kMnemonicColumn) {
    table_.set_selection_display(SelectionDisplay::kCell);
    return;
  }
  table_.set_selection_display(SelectionDisplay::kRows);
  session_.SelectionAnchor = std::max(table_.Row(), 1);
}

void TableClicks::Table1_MouseUp() {
  if (!session_.IsReady() || table_.Col() != kMnemonicColumn) return;
  const RowRange rows = DraggedRows(table_.RowSel());
  if (rows.last < rows.first) {
    ClickMnemonic(table_.Row());
  } else {
    session_.SelectionTop = rows.first;
    session_.SelectionBottom = rows.last;
  }
}

RowRange TableClicks::DraggedRows(int row) const {
  const int anchor = session_.SelectionAnchor;
  const bool selects = session_.IsReady() && table_.Col() == kMnemonicColumn;
  if (!selects || anchor == row || table_.Row() == row) return {};
  return {std::min(anchor, row), std::max(anchor, row)};
}

// Where nothing but the row of the cursor is selected, the cursor tells it.
RowRange TableClicks::SelectedRows() const {
  const bool is_cursor = session_.SelectionTop == session_.CurrentRow &&
                         session_.SelectionBottom == session_.CurrentRow;
  if (!session_.IsReady() || is_cursor) return {};
  return {session_.SelectionTop, session_.SelectionBottom};
}

void TableClicks::ClickMnemonic(int row) {
  session_.SelectionTop = session_.CurrentRow;
  session_.SelectionBottom = session_.CurrentRow;
  const bool opens_line =
      row == table_.Rows() - 1 || (row != 0 && (session_.IsOrigin(row) || session_.IsInsertMode()));
  if (opens_line) rows_.InsertLine(row, 1);
  rows_.NextLine(row == 0 ? 1 : row);
}

void TableClicks::Table1_MouseMove(int column) {
  instructions_.ClearInstructionHint();
  const std::vector<int>& live = states_.CurrentTableTask().LiveColumns;
  if (live.empty()) return;
  const bool acts = std::find(live.begin(), live.end(), column) != live.end();
  table_.set_pointer(acts ? GridPointer::kPick : GridPointer::kDefault);
}

void TableClicks::Table1_Click() {
  const TableTask& task = states_.CurrentTableTask();
  if (task.Clicked) task.Clicked(table_.Row(), table_.Col());
}

void TableClicks::ClickWhenReady(int row, int column) {
  if (column == kLabelColumn) {
    origins_.ClickLabel(row);
  } else if (column == kOpcodeColumn && !session_.IsOrigin(row) &&
             !table_.TextMatrix(row, kOpcodeColumn).empty()) {
    ReenterInstruction(row);
  }
}

void TableClicks::ReenterInstruction(int row) {
  if (table_.TextMatrix(row, kMnemonicColumn) == kDataMnemonic) {
    rows_.NextLine(row);
    data_.EntryMode_Click();
    return;
  }
  const int opcode = OpcodeOf(table_.TextMatrix(row, kOpcodeColumn));
  if (opcode == 0) return;  // NOP cannot be entered again this way
  const int key = FindInstructionKey(PartialInstList(opcode));
  rows_.NextLine(row);
  instructions_.INST_Click(key);
}

}  // namespace quilla
