// Finding a label: every place where it stands or is used is painted and counted.
#ifndef QUILLA_SEARCH_FIND_LABEL_H_
#define QUILLA_SEARCH_FIND_LABEL_H_

#include "program/session.h"
#include "program/state_machine.h"
#include "search/string_painter.h"
#include "symbols/string_lists.h"

namespace quilla {

/// Whether any label is placed or used, by the lists as they stand. If not, the user is told and
/// the panel gets ready for entry.
bool OfferLabels(Session& session, StateMachine& states);

class FindLabelTool {
 public:
  FindLabelTool(Session& session, StateMachine& states, StringLists& strings);

 private:
  void FindStatus(bool status);
  void FindButton_Click();
  void FindDoneButton_Click();

  Session& session_;
  StateMachine& states_;
  StringLists& strings_;
  StringPainter painter_{session_};

  Box FindBox_{&session_.ProgrammingPanel, "FindBox"};
  Label FindHeading_{&FindBox_, "FindHeading", "Find Label"};
  Label FindCaption_{&FindBox_, "FindCaption", "Label:"};
  Button FindButton_{&FindBox_, "FindButton", "&Find"};
  Button FindDoneButton_{&FindBox_, "FindDoneButton", "Done"};
};

}  // namespace quilla

#endif  // QUILLA_SEARCH_FIND_LABEL_H_
