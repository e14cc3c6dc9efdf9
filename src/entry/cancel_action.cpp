#include "entry/cancel_action.h"

namespace quilla {

CancelAction::CancelAction(Session& session, StateMachine& states, Rows& rows)
    : session_(session), states_(states), rows_(rows) {
  TableCancelButton_.Click = [this] { TableCancelButton_Click(); };
  session_.ProgrammingPanel.set_cancel_button(&TableCancelButton_);
}

void CancelAction::TableCancelButton_Click() {
  if (const TableTask& task = states_.CurrentTableTask(); task.Cancelled) task.Cancelled();
  session_.ClosePort();
  if (session_.EntryPending) RestoreEntry();
  states_.ReturnToReady();
  rows_.NextLine(session_.CurrentRow);
}

void CancelAction::RestoreEntry() {
  Grid& table = session_.Table1;
  const int row = session_.CurrentRow;
  for (int column = kAddressColumn; column <= kCommentColumn; ++column) {
    table.SetTextMatrix(row, column, session_.SavedCells[static_cast<std::size_t>(column)]);
  }
  session_.StringTable.SetTextMatrix(row, 0, session_.SavedCells[kSavedOperand]);
}

}  // namespace quilla
