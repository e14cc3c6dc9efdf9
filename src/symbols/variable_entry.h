// The variable box: the 8-bit operand of an instruction, a new variable or a known one. The find
// and replace tools of variables use the same box.
#ifndef QUILLA_SYMBOLS_VARIABLE_ENTRY_H_
#define QUILLA_SYMBOLS_VARIABLE_ENTRY_H_

#include <string>

#include "program/entry_line.h"
#include "program/session.h"
#include "program/state_machine.h"
#include "symbols/name_choice.h"
#include "symbols/string_lists.h"

namespace quilla {

/// The controls of the variable box.
struct VariableBox {
  explicit VariableBox(Session& session);

  /// Disables the options and the text box and hides all four buttons.
  void Reset();
  /// Offers a new name, and the known ones if there are any; nothing is accepted yet.
  void OfferNewOrKnown(Button& accept);

  Session& session;
  Box XXBox{&session.ProgrammingPanel, "XXBox"};
  Label XXHeading{&XXBox, "XXHeading", "Variable"};
  NameChoice name{XXBox,
                  {"NewXXOption", "XXText", "ExistingXXOption", "XXAcceptButton"},
                  "Accept",
                  session.XXCombo};
  Button& XXAcceptButton = name.accept_button();
  Button XXFindButton{&XXBox, "XXFindButton", "&Find"};
  Button XXReplaceButton{&XXBox, "XXReplaceButton", "&Replace"};
  Button XXDoneButton{&XXBox, "XXDoneButton", "Done"};
};

class VariableEntry {
 public:
  VariableEntry(Session& session, StateMachine& states, EntryLine& line, StringLists& strings,
                VariableBox& box);

 private:
  void XXStatus(bool status);
  void XXAcceptButton_Click();
  /// Writes the operand to the row under the cursor: its name, and its equivalent.
  void WriteOperand(const std::string& variable, const std::string& equivalent);

  Session& session_;
  StateMachine& states_;
  EntryLine& line_;
  StringLists& strings_;
  VariableBox& box_;
};

}  // namespace quilla

#endif  // QUILLA_SYMBOLS_VARIABLE_ENTRY_H_
