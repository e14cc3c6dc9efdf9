// The mouse on the program table: what a click, a drag and a moving pointer mean in each state.
#ifndef QUILLA_ENTRY_TABLE_CLICKS_H_
#define QUILLA_ENTRY_TABLE_CLICKS_H_

#include "entry/comment_tool.h"
#include "entry/data_entry.h"
#include "entry/instruction_entry.h"
#include "program/rows.h"
#include "program/session.h"
#include "program/state_machine.h"

namespace quilla {

class TableClicks {
 public:
  TableClicks(Session& session, StateMachine& states, Rows& rows, InstructionEntry& instructions,
              DataEntry& data, CommentTool& comments);

 private:
  void Table1_MouseDown();
  void Table1_MouseUp();
  void Table1_MouseMove(int column);
  void Table1_Click();

  void ClickMnemonic(int row);
  void ClickWhenReady(int row, int column);
  void ReenterInstruction(int row);
  void PickRowForLabel(int row);
  void TakeLabelOff(int row, int column);
  void SelectForReplace(int row, int column);
  void ToggleLabel(int row, int column);
  void SelectVariable(int row, int column);
  void ToggleCell(int row, int column);
  void LeaveOnlyLabelSelected(int row);

  Session& session_;
  Grid& table_;
  StateMachine& states_;
  Rows& rows_;
  InstructionEntry& instructions_;
  DataEntry& data_;
  CommentTool& comments_;
};

}  // namespace quilla

#endif  // QUILLA_ENTRY_TABLE_CLICKS_H_
