// The cancel action, on the Esc key: the one way back from any task.
#ifndef QUILLA_ENTRY_CANCEL_ACTION_H_
#define QUILLA_ENTRY_CANCEL_ACTION_H_

#include <cstddef>

#include "program/rows.h"
#include "program/session.h"
#include "program/state_machine.h"
#include "symbols/string_lists.h"

namespace quilla {

class CancelAction {
 public:
  CancelAction(Session& session, StateMachine& states, Rows& rows, StringLists& strings);

 private:
  void TableCancelButton_Click();
  /// Takes the marks off what the state has painted.
  void UnpaintTask();
  void UnpaintOperands(std::size_t cell_length);
  void UnpaintLabels();
  void RestoreEntry();

  Session& session_;
  Grid& table_;
  StateMachine& states_;
  Rows& rows_;
  StringLists& strings_;
  Button TableCancelButton_;
};

}  // namespace quilla

#endif  // QUILLA_ENTRY_CANCEL_ACTION_H_
