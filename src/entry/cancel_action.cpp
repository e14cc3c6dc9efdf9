#include "entry/cancel_action.h"

#include "program/opcode_cell.h"

namespace quilla {

CancelAction::CancelAction(Session& session, StateMachine& states, Rows& rows, StringLists& strings)
    : session_(session),
      table_(session.Table1),
      states_(states),
      rows_(rows),
      strings_(strings),
      TableCancelButton_(&session.ProgrammingPanel, "TableCancelButton", "Command1") {
  TableCancelButton_.Click = [this] { TableCancelButton_Click(); };
  session_.ProgrammingPanel.set_cancel_button(&TableCancelButton_);
}

void CancelAction::TableCancelButton_Click() {
  UnpaintTask();
  if (session_.CurrentPanelState == PanelState::kDeleteLabels) strings_.UpdateLabels();
  session_.ClosePort();
  if (session_.EntryPending) RestoreEntry();
  states_.ReturnToReady();
  rows_.NextLine(session_.CurrentRow);
}

void CancelAction::UnpaintTask() {
  switch (session_.CurrentPanelState) {
    case PanelState::kPlaceLabel:
    case PanelState::kPlaceOnRow:
      table_.PaintBack(session_.ClickedRow, kLabelColumn, kNormalColor);
      break;
    case PanelState::kCommentRow:
      table_.PaintBack(table_.Row(), table_.Col(),
                       session_.IsOrigin(session_.ClickedRow) ? kOriginColor : kNormalColor);
      break;
    case PanelState::kFindLabel:
    case PanelState::kReplaceLabel:
    case PanelState::kReplacePicked:
      UnpaintLabels();
      break;
    case PanelState::kFindVariable:
    case PanelState::kReplaceVariable:
    case PanelState::kVariablePicked:
      UnpaintOperands(kTwoByteCell);
      break;
    default:
      break;
  }
}

void CancelAction::UnpaintLabels() {
  for (int row = 1; row < table_.Rows(); ++row) {
    if (!table_.TextMatrix(row, kLabelColumn).empty() && !session_.IsOrigin(row)) {
      table_.Paint(row, kLabelColumn, kNormalColor, kNormalColor);
    }
  }
  UnpaintOperands(kThreeByteCell);
}

void CancelAction::UnpaintOperands(std::size_t cell_length) {
  for (int row = 1; row < table_.Rows(); ++row) {
    if (!session_.OperandOf(row).empty() &&
        table_.TextMatrix(row, kOpcodeColumn).size() == cell_length) {
      table_.Paint(row, kMnemonicColumn, kNormalColor, kNormalColor);
    }
  }
}

void CancelAction::RestoreEntry() {
  const int row = session_.CurrentRow;
  for (int column = kAddressColumn; column <= kCommentColumn; ++column) {
    table_.SetTextMatrix(row, column, session_.SavedCells[static_cast<std::size_t>(column)]);
  }
  session_.StringTable.SetTextMatrix(row, 0, session_.SavedCells[kSavedOperand]);
}

}  // namespace quilla
