// Finding and replacing variables, in the box that the entry of variables uses too.
#ifndef QUILLA_SEARCH_VARIABLE_TOOLS_H_
#define QUILLA_SEARCH_VARIABLE_TOOLS_H_

#include <string>

#include "program/session.h"
#include "program/state_machine.h"
#include "search/string_painter.h"
#include "symbols/variable_entry.h"

namespace quilla {

class VariableTools {
 public:
  VariableTools(Session& session, StateMachine& states, VariableBox& box);

 private:
  void OpenFind();
  void OpenReplace();
  /// Paints the variables that can be replaced. Gives whether there are any.
  bool PaintCandidates();
  /// The first click on the table.
  void SelectFirst(int row, int column);
  void TellNoVariables();

  void XXFindButton_Click();
  void XXReplaceButton_Click();
  void XXDoneButton_Click();
  void ReplaceSelected(const std::string& name, const std::string& equivalent);

  Session& session_;
  StateMachine& states_;
  VariableBox& box_;
  StringPainter painter_{session_};
};

}  // namespace quilla

#endif  // QUILLA_SEARCH_VARIABLE_TOOLS_H_
