#include "print/print_comment.h"

namespace quilla {

PrintComment::PrintComment(Session& session, StateMachine& states, PrintState& state)
    : session_(session), states_(states), state_(state) {
  session_.PrintCommentText.PlaceIn(&PrintCommentBox_);
  PrintCommentBox_.Hide();
  ClearComments_.Click = [this] { session_.PrintCommentText.set_text({}); };
  PrintCommentDoneButton_.Click = [this] { PrintCommentDoneButton_Click(); };
  PrintCommentCancelButton_.Click = [this] { states_.ReturnToReady(); };
  session_.menu.PrintComments.Click = [this] {
    states_.ControlTransfer(PanelState::kPrintComment);
  };
  states_.SetStatus(BoxId::kPrintComment, [this](bool status) { PrintCommentStatus(status); });
}

void PrintComment::PrintCommentStatus(bool status) {
  PrintCommentBox_.set_visible(status);
  if (!status) return;
  PrintCommentDoneButton_.MakeDefault();
  session_.PrintCommentText.SetFocus();
}

void PrintComment::PrintCommentDoneButton_Click() {
  state_.PrintCommentString = session_.PrintCommentText.text();
  states_.ReturnToReady();
}

}  // namespace quilla
