#include "entry/table_clicks.h"

#include <algorithm>
#include <string>

#include "isa/instruction_set.h"
#include "program/opcode_cell.h"

namespace quilla {

TableClicks::TableClicks(Session& session, StateMachine& states, Rows& rows,
                         InstructionEntry& instructions, DataEntry& data, CommentTool& comments)
    : session_(session),
      table_(session.Table1),
      states_(states),
      rows_(rows),
      instructions_(instructions),
      data_(data),
      comments_(comments) {
  table_.MouseDown = [this] { Table1_MouseDown(); };
  table_.MouseUp = [this] { Table1_MouseUp(); };
  table_.CellMouseMove = [this](int column) { Table1_MouseMove(column); };
  table_.Click = [this] { Table1_Click(); };
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
  const int anchor = session_.SelectionAnchor;
  const int end = table_.RowSel();
  if (anchor == end || table_.Row() == end) {
    ClickMnemonic(table_.Row());
  } else {
    session_.SelectionTop = std::min(anchor, end);
    session_.SelectionBottom = std::max(anchor, end);
  }
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
  bool acts = false;
  switch (session_.CurrentPanelState) {
    case PanelState::kReady:
    case PanelState::kDataReady:
      acts = column == kMnemonicColumn;
      break;
    case PanelState::kPlaceLabel:
    case PanelState::kPlaceOnRow:
      acts = column == kLabelColumn;
      break;
    case PanelState::kComment:
    case PanelState::kCommentRow:
      acts = column == kCommentColumn;
      break;
    case PanelState::kReplaceLabel:
    case PanelState::kReplacePicked:
      acts = column == kMnemonicColumn || column == kLabelColumn;
      break;
    default:
      return;
  }
  table_.set_pointer(acts ? GridPointer::kPick : GridPointer::kDefault);
}

void TableClicks::Table1_Click() {
  const int row = table_.Row();
  const int column = table_.Col();
  switch (session_.CurrentPanelState) {
    case PanelState::kReady:
    case PanelState::kDataReady:
      ClickWhenReady(row, column);
      break;
    case PanelState::kPlaceLabel:
    case PanelState::kPlaceOnRow:
      PickRowForLabel(row);
      break;
    case PanelState::kCommentRow:
      table_.PaintBack(session_.ClickedRow, kCommentColumn, kNormalColor);
      [[fallthrough]];
    case PanelState::kComment:
      session_.ClickedRow = row;
      comments_.EditClickedRow();
      break;
    case PanelState::kReplaceLabel:
      SelectForReplace(row, column);
      break;
    case PanelState::kReplacePicked:
      ToggleLabel(row, column);
      break;
    case PanelState::kDeleteLabels:
      TakeLabelOff(row, column);
      break;
    case PanelState::kReplaceVariable:
      SelectVariable(row, column);
      break;
    case PanelState::kVariablePicked:
      ToggleCell(row, column);
      break;
    default:
      break;
  }
}

void TableClicks::ClickWhenReady(int row, int column) {
  if (column == kLabelColumn && session_.IsOrigin(row)) {
    session_.ClickedRow = row;
    states_.ControlTransfer(PanelState::kChangeOrigin);
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

void TableClicks::PickRowForLabel(int row) {
  if (session_.IsOrigin(row)) return;
  const bool again = session_.CurrentPanelState == PanelState::kPlaceOnRow;
  if (again) table_.PaintBack(session_.ClickedRow, kLabelColumn, kNormalColor);
  session_.ClickedRow = row;
  table_.PaintBack(row, kLabelColumn, kPickedColor);
  if (!again) states_.ControlTransfer(PanelState::kPlaceOnRow);
}

void TableClicks::TakeLabelOff(int row, int column) {
  if (column != kLabelColumn) return;
  const int label = session_.LabelCombo.Find(table_.TextMatrix(row, kLabelColumn));
  if (label >= 0) session_.LabelEqtList.Set(label, kUnknownAddress);
  table_.SetTextMatrix(row, kLabelColumn, {});
}

void TableClicks::SelectForReplace(int row, int column) {
  if (session_.IsOrigin(row)) return;
  const bool label = column == kLabelColumn && !table_.TextMatrix(row, kLabelColumn).empty();
  const bool operand = column == kMnemonicColumn && !session_.OperandOf(row).empty();
  if (label || operand) table_.Paint(row, column, kPickedColor, kBlack);
  states_.ControlTransfer(PanelState::kReplacePicked);
}

void TableClicks::ToggleLabel(int row, int column) {
  if (session_.IsOrigin(row)) return;
  const bool selects = table_.BackColor(row, column) == kCandidateColor;
  ToggleCell(row, column);
  if (selects && column != kMnemonicColumn) LeaveOnlyLabelSelected(row);
}

void TableClicks::SelectVariable(int row, int column) {
  if (column == kMnemonicColumn && !session_.OperandOf(row).empty()) {
    table_.Paint(row, column, kPickedColor, kBlack);
  }
  states_.ControlTransfer(PanelState::kVariablePicked);
}

void TableClicks::ToggleCell(int row, int column) {
  const CellColor color = table_.BackColor(row, column);
  if (color == kPickedColor) {
    table_.Paint(row, column, kCandidateColor, kWhite);
  } else if (color == kCandidateColor) {
    table_.Paint(row, column, kPickedColor, kBlack);
  }
}

void TableClicks::LeaveOnlyLabelSelected(int row) {
  for (int other = 1; other < table_.Rows(); ++other) {
    const std::string& label = table_.TextMatrix(other, kLabelColumn);
    if (other != row && !label.empty() && label != kOrigin) {
      table_.Paint(other, kLabelColumn, kCandidateColor, kWhite);
    }
  }
}

}  // namespace quilla
