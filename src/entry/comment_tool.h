// The comment tool: comments of the user's own, row by row. The table follows each key.
#ifndef QUILLA_ENTRY_COMMENT_TOOL_H_
#define QUILLA_ENTRY_COMMENT_TOOL_H_

#include "platform/text_box.h"
#include "program/session.h"
#include "program/state_machine.h"

namespace quilla {

class CommentTool {
 public:
  CommentTool(Session& session, StateMachine& states);

 private:
  void CommentStatus(bool status);
  void CommentsTxt_Change();
  void CommentNextButton_Click();
  void DefaultCommentButton_Click();
  void CommentDoneButton_Click();
  void CommentCancelButton_Click();
  /// Marks the comment of a row and opens it for editing.
  void EditComment(int row);
  void Cancelled();
  /// The colour of `ClickedRow` when its comment is not marked.
  CellColor ColorOfRow() const;
  /// Takes the mark off the comment under edit.
  void Unmark(CellColor color);

  Session& session_;
  StateMachine& states_;

  Box CommentsBox_{&session_.ProgrammingPanel, "CommentsBox"};
  Label CommentsHeading_{&CommentsBox_, "CommentsHeading", "Comments"};
  TextBox CommentsTxt_{&CommentsBox_, "CommentsTxt"};
  Button CommentNextButton_{&CommentsBox_, "CommentNextButton", "&Next"};
  Button DefaultCommentButton_{&CommentsBox_, "DefaultCommentButton", "&Default Comment"};
  // Does nothing.
  Button CommentContinueButton_{&CommentsBox_, "CommentContinueButton", "&Continue in next line"};
  Button CommentDoneButton_{&CommentsBox_, "CommentDoneButton", "Done"};
  Button CommentCancelButton_{&CommentsBox_, "CommentCancelButton", "Ignore"};
};

}  // namespace quilla

#endif  // QUILLA_ENTRY_COMMENT_TOOL_H_
