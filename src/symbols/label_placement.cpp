#include "symbols/label_placement.h"

#include "platform/number_text.h"
#include "symbols/string_inputs.h"

namespace quilla {

LabelPlacement::LabelPlacement(Session& session, StateMachine& states, StringLists& strings)
    : session_(session),
      states_(states),
      strings_(strings),
      PlaceBox_(&session.ProgrammingPanel, "PlaceBox"),
      PlaceHeading_(&PlaceBox_, "PlaceHeading", "Label"),
      NewPlaceOption_(&PlaceBox_, "NewPlaceOption", "New:"),
      PlaceText_(&PlaceBox_, "PlaceText", kLongestName),
      ExistingPlaceOption_(&PlaceBox_, "ExistingPlaceOption", "Existing:"),
      PlaceAcceptButton_(&PlaceBox_, "PlaceAcceptButton", "Place"),
      PlaceDoneButton_(&PlaceBox_, "PlaceDoneButton", "Done") {
  session_.PlaceCombo.PlaceIn(&PlaceBox_);
  session_.PlaceCombo.Show();
  NewPlaceOption_.Click = [this] { NewPlaceOption_Click(); };
  ExistingPlaceOption_.Click = [this] { ExistingPlaceOption_Click(); };
  PlaceText_.TextChange = [this] { PlaceText_Change(); };
  PlaceAcceptButton_.Click = [this] { PlaceAcceptButton_Click(); };
  PlaceDoneButton_.Click = [this] { PlaceDoneButton_Click(); };
  PlaceBox_.Hide();
  session_.menu.PlaceLabelTool.Click = [this] { states_.ControlTransfer(PanelState::kPlaceLabel); };
  session_.menu.DeleteLabels.Click = [this] { DeleteLabels_Click(); };
  states_.SetStatus(BoxId::kPlace, [this](bool status) { PlaceStatus(status); });
  states_.SetPicked(PanelState::kPlaceOnRow, [this] { RowPicked(); });
  states_.SetTableTask({PanelState::kPlaceLabel, PanelState::kPlaceOnRow},
                       {.Clicked = [this](int row, int) { PickRow(row); },
                        .Cancelled = [this] { Unmark(); },
                        .LiveColumns = {kLabelColumn}});
  states_.SetTableTask({PanelState::kDeleteLabels},
                       {.Clicked = [this](int row, int column) { TakeLabelOff(row, column); },
                        .Cancelled = [this] { strings_.UpdateLabels(); }});
}

void LabelPlacement::PlaceStatus(bool status) {
  if (!status) {
    PlaceBox_.Hide();
    return;
  }
  strings_.UpdateLabels();
  PlaceBox_.Show();
  ExistingPlaceOption_.set_enabled(!session_.LabelCombo.IsEmpty());
  session_.PlaceCombo.SelectFirst();
  NewPlaceOption_.set_enabled(true);
  NewPlaceOption_.set_checked(true);
  OfferNewName(PlaceText_, session_.PlaceCombo);
  PlaceAcceptButton_.set_enabled(false);
  PlaceText_.SetFocus();
}

void LabelPlacement::PickRow(int row) {
  if (session_.IsOrigin(row)) return;
  const bool again = session_.CurrentPanelState == PanelState::kPlaceOnRow;
  if (again) Unmark();
  session_.ClickedRow = row;
  session_.Table1.PaintBack(row, kLabelColumn, kPickedColor);
  if (!again) states_.ControlTransfer(PanelState::kPlaceOnRow);
}

void LabelPlacement::Unmark() {
  session_.Table1.PaintBack(session_.ClickedRow, kLabelColumn, kNormalColor);
}

void LabelPlacement::RowPicked() {
  if (ExistingPlaceOption_.checked()) {
    PlaceAcceptButton_.set_enabled(true);
    PlaceAcceptButton_.MakeDefault();
  } else {
    PlaceText_Change();
  }
}

void LabelPlacement::NewPlaceOption_Click() {
  SetLive(session_.PlaceCombo, false);
  SetLive(PlaceText_, true);
  PlaceText_.SetFocus();
  PlaceAcceptButton_.set_enabled(false);
}

void LabelPlacement::ExistingPlaceOption_Click() {
  SetLive(PlaceText_, false);
  SetLive(session_.PlaceCombo, true);
  session_.PlaceCombo.SetFocus();
  if (session_.CurrentPanelState != PanelState::kPlaceOnRow) return;
  PlaceAcceptButton_.set_enabled(true);
  PlaceAcceptButton_.MakeDefault();
}

void LabelPlacement::PlaceText_Change() {
  if (!PlaceText_.enabled()) return;
  const bool row_picked = session_.CurrentPanelState == PanelState::kPlaceOnRow;
  PlaceAcceptButton_.set_enabled(row_picked && IsGoodName(PlaceText_.text()));
  if (PlaceAcceptButton_.enabled()) PlaceAcceptButton_.MakeDefault();
}

void LabelPlacement::PlaceAcceptButton_Click() {
  const int row = session_.ClickedRow;
  if (MayReplaceLabel(row)) {
    if (NewPlaceOption_.checked()) {
      PlaceNewLabel(row);
    } else {
      PlaceKnownLabel(row);
    }
  }
  Unmark();
  states_.ControlTransfer(PanelState::kPlaceLabel);  // opens afresh, with the lists up to date
  session_.FileChanged = true;
}

bool LabelPlacement::MayReplaceLabel(int row) {
  if (session_.Table1.TextMatrix(row, kLabelColumn).empty()) return true;
  return session_.Ask(BoxIcon::kQuestion,
                      "A label is already present in the selected cell. Do you want to replace "
                      "the existing label?",
                      BoxButtons::kYesNo) == BoxAnswer::kYes;
}

void LabelPlacement::PlaceNewLabel(int row) {
  const std::string label = PlaceText_.text();
  if (strings_.IsTaken(label)) {
    session_.ShowCritical(
        "String already used as Label or Variable. Please enter another string or use existing "
        "string.");
    PlaceText_.set_text({});
    PlaceText_.SetFocus();
    return;
  }
  session_.Table1.SetTextMatrix(row, kLabelColumn, label);
  session_.AddLabel({.name = label,
                     .placed = kYesFlag,
                     .used = kNoFlag,
                     .line = std::to_string(row),
                     .equivalent = kUnknownAddress});
}

void LabelPlacement::PlaceKnownLabel(int row) {
  const int label = session_.PlaceCombo.index();
  const std::string name = session_.PlaceCombo.text();
  if (!MayMoveLabel(label, row)) return;
  session_.Table1.SetTextMatrix(row, kLabelColumn, name);
  session_.LabelLineList.Set(label, std::to_string(row));
  session_.LabelPlacedList.Set(label, kYesFlag);
}

bool LabelPlacement::MayMoveLabel(int label, int row) {
  const std::string line = session_.LabelLineList[label];
  if (DecimalValue(session_.LabelPlacedList[label]) == 0 || DecimalValue(line) == row) return true;
  const BoxAnswer answer = session_.Ask(
      BoxIcon::kQuestion,
      "The string '" + session_.PlaceCombo.text() + "' is already placed in line # " + line +
          ". Do you want to reposition it to line # " + std::to_string(row) + "?",
      BoxButtons::kYesNo);
  if (answer != BoxAnswer::kYes) return false;
  session_.Table1.SetTextMatrix(static_cast<int>(DecimalValue(line)), kLabelColumn, {});
  return true;
}

void LabelPlacement::PlaceDoneButton_Click() {
  PlaceBox_.Hide();
  Unmark();
  states_.ReturnToReady();
}

void LabelPlacement::DeleteLabels_Click() {
  states_.ControlTransfer(PanelState::kDeleteLabels);
  session_.FileChanged = true;
}

void LabelPlacement::TakeLabelOff(int row, int column) {
  if (column != kLabelColumn) return;
  const int label = session_.LabelCombo.Find(session_.Table1.TextMatrix(row, kLabelColumn));
  if (label >= 0) session_.LabelEqtList.Set(label, kUnknownAddress);
  session_.Table1.SetTextMatrix(row, kLabelColumn, {});
}

}  // namespace quilla
