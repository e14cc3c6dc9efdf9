// The cancel action, on the Esc key: the one way back from any task.
#ifndef QUILLA_ENTRY_CANCEL_ACTION_H_
#define QUILLA_ENTRY_CANCEL_ACTION_H_

#include "program/rows.h"
#include "program/session.h"
#include "program/state_machine.h"

namespace quilla {

class CancelAction {
 public:
  CancelAction(Session& session, StateMachine& states, Rows& rows);

 private:
  void TableCancelButton_Click();
  void RestoreEntry();

  Session& session_;
  StateMachine& states_;
  Rows& rows_;
  Button TableCancelButton_{&session_.ProgrammingPanel, "TableCancelButton", "Command1"};
};

}  // namespace quilla

#endif  // QUILLA_ENTRY_CANCEL_ACTION_H_
