#include "search/find_label.h"

#include "platform/number_text.h"

namespace quilla {

bool OfferLabels(Session& session, StateMachine& states) {
  for (int i = 0; i < session.LabelCombo.Count(); ++i) {
    if (DecimalValue(session.LabelPlacedList[i]) > 0 ||
        DecimalValue(session.LabelUsedList[i]) > 0) {
      return true;
    }
  }
  session.ShowInformation("No labels used in the program.");
  states.ReturnToReady();
  return false;
}

FindLabelTool::FindLabelTool(Session& session, StateMachine& states, StringLists& strings)
    : session_(session), states_(states), strings_(strings) {
  session_.FindCombo.PlaceIn(&FindBox_);
  session_.FindCombo.Show();
  FindButton_.Click = [this] { FindButton_Click(); };
  FindDoneButton_.Click = [this] { FindDoneButton_Click(); };
  FindBox_.Hide();
  session_.menu.FindLabel.Click = [this] { states_.ControlTransfer(PanelState::kFindLabel); };
  states_.SetStatus(BoxId::kFind, [this](bool status) { FindStatus(status); });
  states_.SetTableTask({PanelState::kFindLabel},
                       {.Cancelled = [this] { painter_.CleanLabelUses(); }});
}

void FindLabelTool::FindStatus(bool status) {
  if (!status) {
    FindBox_.Hide();
    return;
  }
  strings_.UpdateLabels();
  if (!OfferLabels(session_, states_)) return;
  FindBox_.Show();
  FindButton_.MakeDefault();
  session_.FindCombo.SelectFirst();
  session_.FindCombo.SetFocus();
}

void FindLabelTool::FindButton_Click() {
  session_.SetTip("Searching for label . . .");
  const std::string name = session_.FindCombo.text();
  int uses = 0;
  for (int row = 0; row < session_.Table1.Rows(); ++row) {
    if (painter_.HasLabel(row)) {
      const bool matches = session_.Table1.TextMatrix(row, kLabelColumn) == name;
      uses += painter_.PaintMatch(row, kLabelColumn, matches);
    }
    if (painter_.HasOperand(row)) {
      uses += painter_.PaintMatch(row, kMnemonicColumn, session_.OperandOf(row) == name);
    }
  }
  session_.SetTip("Completed searching for label.");
  painter_.TellUses("label", name, uses);
}

void FindLabelTool::FindDoneButton_Click() {
  for (int row = 0; row < session_.Table1.Rows(); ++row) {
    if (painter_.HasLabel(row)) painter_.PaintNormal(row, kLabelColumn);
    if (painter_.HasOperand(row)) painter_.PaintNormal(row, kMnemonicColumn);
  }
  states_.ReturnToReady();
}

}  // namespace quilla
