// The comment line of printed pages: typed in a box, taken over when it is accepted.
#ifndef QUILLA_PRINT_PRINT_COMMENT_H_
#define QUILLA_PRINT_PRINT_COMMENT_H_

#include "platform/button.h"
#include "print/print_state.h"
#include "program/session.h"
#include "program/state_machine.h"

namespace quilla {

class PrintComment {
 public:
  PrintComment(Session& session, StateMachine& states, PrintState& state);

 private:
  void PrintCommentStatus(bool status);
  void PrintCommentDoneButton_Click();

  Session& session_;
  StateMachine& states_;
  PrintState& state_;

  Box PrintCommentBox_{&session_.ProgrammingPanel, "PrintCommentBox"};
  Label PrintCommentHeading_{&PrintCommentBox_, "PrintCommentHeading", "Comments"};
  Button ClearComments_{&PrintCommentBox_, "ClearComments", "Clear"};
  Button PrintCommentDoneButton_{&PrintCommentBox_, "PrintCommentDoneButton", "Accept"};
  Button PrintCommentCancelButton_{&PrintCommentBox_, "PrintCommentCancelButton", "Ignore"};
};

}  // namespace quilla

#endif  // QUILLA_PRINT_PRINT_COMMENT_H_
