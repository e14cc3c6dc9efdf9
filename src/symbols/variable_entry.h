// The variable box: the 8-bit operand of an instruction, a new variable or a known one. The find
// and replace tools of variables use the same box.
#ifndef QUILLA_SYMBOLS_VARIABLE_ENTRY_H_
#define QUILLA_SYMBOLS_VARIABLE_ENTRY_H_

#include <string>

#include "platform/text_box.h"
#include "program/entry_line.h"
#include "program/session.h"
#include "program/state_machine.h"
#include "symbols/string_lists.h"

namespace quilla {

/// The controls of the variable box.
struct VariableBox {
  explicit VariableBox(Session& session);

  /// Disables the options and the text box and hides all four buttons.
  void Reset();
  /// Offers a new name, and the known ones if there are any; nothing is accepted yet.
  void OfferNewOrKnown(Button& accept);

  Box XXBox;
  Label XXHeading;
  Option NewXXOption;
  TextBox XXText;
  Option ExistingXXOption;
  ComboBox& XXCombo;
  Button XXAcceptButton;
  Button XXFindButton;
  Button XXReplaceButton;
  Button XXDoneButton;
};

class VariableEntry {
 public:
  VariableEntry(Session& session, StateMachine& states, EntryLine& line, StringLists& strings,
                VariableBox& box);

 private:
  void XXStatus(bool status);
  void NewXXOption_Click();
  void ExistingXXOption_Click();
  void XXText_Change();
  void XXAcceptButton_Click();
  void SetAcceptable(bool acceptable);
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
