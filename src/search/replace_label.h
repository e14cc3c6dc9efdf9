// Replacing labels: the candidates are painted, the user selects some, and they take another name.
#ifndef QUILLA_SEARCH_REPLACE_LABEL_H_
#define QUILLA_SEARCH_REPLACE_LABEL_H_

#include <string>

#include "program/session.h"
#include "program/state_machine.h"
#include "search/string_painter.h"
#include "symbols/label_placement.h"
#include "symbols/name_choice.h"
#include "symbols/string_lists.h"

namespace quilla {

class ReplaceLabelTool {
 public:
  ReplaceLabelTool(Session& session, StateMachine& states, StringLists& strings,
                   const LabelPlacement& placement);

 private:
  void ReplaceStatus(bool status);
  void ReplaceAcceptButton_Click();
  void ReplaceDoneButton_Click();

  /// The clicks on the table, the first and those after it.
  void SelectFirst(int row, int column);
  void Toggle(int row, int column);
  void LeaveOnlyLabelSelected(int row);

  void PaintCandidates();
  void ReplaceByKnown();
  void ReplaceByNew(const std::string& name);
  /// Moves a known label to a row, its old row emptied; nothing if the user says no.
  void MoveKnownLabel(int label, const std::string& name, int row);

  Session& session_;
  StateMachine& states_;
  StringLists& strings_;
  const LabelPlacement& placement_;
  StringPainter painter_{session_};

  Box ReplaceBox_{&session_.ProgrammingPanel, "ReplaceBox"};
  Label ReplaceHeading_{&ReplaceBox_, "ReplaceHeading", "Label"};
  NameChoice name_{
      ReplaceBox_,
      {"NewReplaceOption", "ReplaceText", "ExistingReplaceOption", "ReplaceAcceptButton"},
      "Replace",
      session_.ReplaceCombo,
      {.RowPicked = [this] { return session_.CurrentPanelState == PanelState::kReplacePicked; },
       .options_accept = true}};
  Button ReplaceDoneButton_{&ReplaceBox_, "ReplaceDoneButton", "Done"};
};

}  // namespace quilla

#endif  // QUILLA_SEARCH_REPLACE_LABEL_H_
