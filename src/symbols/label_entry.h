// The label box: the 16-bit operand of an instruction, a new label or a known one.
#ifndef QUILLA_SYMBOLS_LABEL_ENTRY_H_
#define QUILLA_SYMBOLS_LABEL_ENTRY_H_

#include <string>

#include "program/entry_line.h"
#include "program/session.h"
#include "program/state_machine.h"
#include "symbols/name_choice.h"
#include "symbols/string_lists.h"

namespace quilla {

class LabelEntry {
 public:
  LabelEntry(Session& session, StateMachine& states, EntryLine& line, StringLists& strings);

 private:
  void LabelStatus(bool status);
  void LabelAcceptButton_Click();
  /// Writes the operand to the row under the cursor: its name, and its equivalent.
  void WriteOperand(const std::string& label, const std::string& equivalent);

  Session& session_;
  StateMachine& states_;
  EntryLine& line_;
  StringLists& strings_;

  Box LabelBox_{&session_.ProgrammingPanel, "LabelBox"};
  Label LabelHeading_{&LabelBox_, "LabelHeading", "Label"};
  NameChoice name_{LabelBox_,
                   {"NewLabelOption", "LabelText", "ExistingLabelOption", "LabelAcceptButton"},
                   "&Accept",
                   session_.LabelCombo};
};

}  // namespace quilla

#endif  // QUILLA_SYMBOLS_LABEL_ENTRY_H_
