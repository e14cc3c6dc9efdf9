#include "entry/comment_tool.h"

#include <string>

#include "program/default_comment.h"

namespace quilla {
namespace {

/// What a comment becomes while it is typed: it ends with no ampersand, and holds no double quote,
/// which would end it in the project file.
std::string Cleaned(std::string text) {
  std::erase(text, '"');
  text.resize(text.find_last_not_of('&') + 1);
  return text;
}

}  // namespace

CommentTool::CommentTool(Session& session, StateMachine& states)
    : session_(session), states_(states) {
  CommentsTxt_.TextChange = [this] { CommentsTxt_Change(); };
  CommentNextButton_.Click = [this] { CommentNextButton_Click(); };
  DefaultCommentButton_.Click = [this] { DefaultCommentButton_Click(); };
  CommentDoneButton_.Click = [this] { CommentDoneButton_Click(); };
  CommentCancelButton_.Click = [this] { CommentCancelButton_Click(); };
  CommentsBox_.Hide();
  session_.menu.CommentsTool.Click = [this] { states_.ControlTransfer(PanelState::kComment); };
  states_.SetStatus(BoxId::kComment, [this](bool status) { CommentStatus(status); });
  states_.SetTableTask(
      {PanelState::kComment},
      {.Clicked = [this](int row, int) { EditComment(row); }, .LiveColumns = {kCommentColumn}});
  states_.SetTableTask({PanelState::kCommentRow}, {.Clicked =
                                                       [this](int row, int) {
                                                         Unmark(kNormalColor);
                                                         EditComment(row);
                                                       },
                                                   .Cancelled = [this] { Cancelled(); },
                                                   .LiveColumns = {kCommentColumn}});
}

void CommentTool::CommentStatus(bool status) {
  CommentsBox_.set_visible(status);
  if (!status) return;
  const Grid& table = session_.Table1;
  const int row = session_.ClickedRow;
  CommentsTxt_.set_text(table.TextMatrix(row, kCommentColumn));
  DefaultCommentButton_.set_enabled(!table.TextMatrix(row, kOpcodeColumn).empty());
  CommentNextButton_.set_enabled(row < table.Rows() - 1);
  CommentDoneButton_.set_enabled(true);
  CommentsTxt_.SetFocus();
}

void CommentTool::EditComment(int row) {
  session_.ClickedRow = row;
  session_.Table1.PaintBack(row, kCommentColumn, kCommentColor);
  session_.SavedComment = session_.Table1.TextMatrix(row, kCommentColumn);
  states_.ControlTransfer(PanelState::kCommentRow);
}

void CommentTool::CommentsTxt_Change() {
  CommentsTxt_.set_text(Cleaned(CommentsTxt_.text()));
  session_.Table1.SetTextMatrix(session_.ClickedRow, kCommentColumn, CommentsTxt_.text());
}

void CommentTool::CommentNextButton_Click() {
  Unmark(kNormalColor);
  EditComment(session_.ClickedRow + 1);
  session_.FileChanged = true;
}

void CommentTool::DefaultCommentButton_Click() {
  CommentsTxt_.set_text({});
  ApplyDefaultComment(session_, session_.ClickedRow);
  CommentsTxt_.SetFocus();
}

void CommentTool::CommentDoneButton_Click() {
  Unmark(kNormalColor);
  CommentsBox_.Hide();
  states_.ReturnToReady();
  session_.FileChanged = true;
}

void CommentTool::CommentCancelButton_Click() {
  session_.Table1.SetTextMatrix(session_.ClickedRow, kCommentColumn, session_.SavedComment);
  Unmark(ColorOfRow());
  CommentsBox_.Hide();
  states_.ReturnToReady();
}

void CommentTool::Cancelled() {
  Grid& table = session_.Table1;
  table.PaintBack(table.Row(), table.Col(), ColorOfRow());  // the cell clicked last
}

CellColor CommentTool::ColorOfRow() const {
  return session_.IsOrigin(session_.ClickedRow) ? kOriginColor : kNormalColor;
}

void CommentTool::Unmark(CellColor color) {
  session_.Table1.PaintBack(session_.ClickedRow, kCommentColumn, color);
}

}  // namespace quilla
