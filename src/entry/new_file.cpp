#include "entry/new_file.h"

#include "program/offer_to_save.h"

namespace quilla {

NewFileCommand::NewFileCommand(Session& session, StateMachine& states, Rows& rows,
                               NumberEntry& numbers)
    : session_(session), states_(states), rows_(rows), numbers_(numbers) {
  session_.menu.NewFile.Click = [this] { NewFile_Click(); };
}

void NewFileCommand::New_File() {
  rows_.SetRows(1);
  session_.Table1.Clear();
  session_.StringTable.Clear();
  rows_.SetRows(kLeastRows);
  session_.menu.PasteEdit.set_enabled(session_.EditTable.Rows() > 0);
  session_.ClearStrings();
  session_.SelectionAnchor = 0;
  session_.SelectionTop = 0;
  session_.SelectionBottom = 0;
  session_.Table1.SetRowSel(0);
  session_.CurrentRow = 0;
  session_.SetWriteMode(false);
  session_.Table1.SelectRow(0);
  session_.LastLine = 0;
  session_.ProgrammingPanel.set_caption(kTitle + session_.FileName);
  session_.PrintCommentText.set_text({});
  states_.ControlTransfer(PanelState::kReady);
  session_.OriginList.Clear();
  session_.LastAddressList.Clear();
  numbers_.EnterFirstOrigin();
  session_.SetTip("New File.");
  session_.FileOrigin = FileOrigin::kNew;
  session_.FileChanged = false;
}

void NewFileCommand::NewFile_Click() {
  if (session_.FileChanged) AskToSaveChanges(session_);
  if (!SaveAsAnswered(session_)) return;
  session_.FileName = kNewFileName;
  New_File();
}

}  // namespace quilla
