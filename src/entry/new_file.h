// Starting a new file: an empty table with one origin, and no strings.
#ifndef QUILLA_ENTRY_NEW_FILE_H_
#define QUILLA_ENTRY_NEW_FILE_H_

#include "entry/number_entry.h"
#include "program/rows.h"
#include "program/session.h"
#include "program/state_machine.h"

namespace quilla {

class NewFileCommand {
 public:
  NewFileCommand(Session& session, StateMachine& states, Rows& rows, NumberEntry& numbers);

  /// Empties the session, under the name that `FileName` holds.
  void New_File();
  /// The menu command: offers to save unsaved changes first. Where there are none, the answer of
  /// the message box before decides, whichever box that was.
  void NewFile_Click();

 private:
  Session& session_;
  StateMachine& states_;
  Rows& rows_;
  NumberEntry& numbers_;
};

}  // namespace quilla

#endif  // QUILLA_ENTRY_NEW_FILE_H_
