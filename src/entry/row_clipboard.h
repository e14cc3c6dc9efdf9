// Cut, copy, paste and delete of whole rows. The clipboard is the program's own and outlives the
// file; pasted labels and variables are kept consistent with those of the table.
#ifndef QUILLA_ENTRY_ROW_CLIPBOARD_H_
#define QUILLA_ENTRY_ROW_CLIPBOARD_H_

#include <string>

#include "platform/list_index.h"
#include "program/rows.h"
#include "program/session.h"
#include "program/state_machine.h"
#include "symbols/string_lists.h"

namespace quilla {

class RowClipboard {
 public:
  RowClipboard(Session& session, StateMachine& states, Rows& rows, StringLists& strings);

 private:
  void CopyMnemonics();
  void CopyEdit_Click();
  void CutEdit_Click();
  void DeleteEdit_Click();
  void PasteEdit_Click();

  /// Where a row stands once the selected rows are gone; their top for one of them.
  int RowAfterDelete(int row) const;
  void PasteRow(int clip_row, int row, ListIndex& labels, ListIndex& variables);
  void PasteLabelOperand(int clip_row, int row, ListIndex& labels);
  void RenameOperand(int clip_row, int row, const std::string& new_name);
  void AddLabel(const LabelRecord& label, ListIndex& labels);

  Session& session_;
  StateMachine& states_;
  Rows& rows_;
  StringLists& strings_;
};

}  // namespace quilla

#endif  // QUILLA_ENTRY_ROW_CLIPBOARD_H_
