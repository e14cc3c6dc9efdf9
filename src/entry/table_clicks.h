// The mouse on the program table: it moves the cursor, selects rows and enters a row again while
// the panel is ready, and goes to the task of the state otherwise.
#ifndef QUILLA_ENTRY_TABLE_CLICKS_H_
#define QUILLA_ENTRY_TABLE_CLICKS_H_

#include "entry/data_entry.h"
#include "entry/instruction_entry.h"
#include "program/rows.h"
#include "program/session.h"
#include "program/state_machine.h"
#include "symbols/origins.h"

namespace quilla {

class TableClicks {
 public:
  TableClicks(Session& session, StateMachine& states, Rows& rows, Origins& origins,
              InstructionEntry& instructions, DataEntry& data);

 private:
  void Table1_MouseDown();
  void Table1_MouseUp();
  RowRange DraggedRows(int row) const;
  RowRange SelectedRows() const;
  void Table1_MouseMove(int column);
  void Table1_Click();

  void ClickMnemonic(int row);
  void ClickWhenReady(int row, int column);
  void ReenterInstruction(int row);

  Session& session_;
  Grid& table_;
  StateMachine& states_;
  Rows& rows_;
  Origins& origins_;
  InstructionEntry& instructions_;
  DataEntry& data_;
};

}  // namespace quilla

#endif  // QUILLA_ENTRY_TABLE_CLICKS_H_
