#include "symbols/label_placement.h"

#include "platform/number_text.h"

namespace quilla {

LabelPlacement::LabelPlacement(Session& session, StateMachine& states, StringLists& strings)
    : session_(session), states_(states), strings_(strings) {
  name_.accept_button().Click = [this] { PlaceAcceptButton_Click(); };
  PlaceDoneButton_.Click = [this] { PlaceDoneButton_Click(); };
  PlaceBox_.Hide();
  session_.menu.PlaceLabelTool.Click = [this] { states_.ControlTransfer(PanelState::kPlaceLabel); };
  session_.menu.DeleteLabels.Click = [this] { DeleteLabels_Click(); };
  states_.SetStatus(BoxId::kPlace, [this](bool status) { PlaceStatus(status); });
  states_.SetPicked(PanelState::kPlaceOnRow, [this] { name_.RowPicked(); });
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
  name_.Open();
  name_.FocusText();
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

void LabelPlacement::PlaceAcceptButton_Click() {
  const int row = session_.ClickedRow;
  if (MayReplaceLabel(row)) {
    if (name_.IsKnown()) {
      PlaceKnownLabel(row);
    } else {
      PlaceNewLabel(row);
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
  const std::string& label = name_.NewName();
  if (strings_.IsTaken(label)) {
    session_.ShowCritical(
        "String already used as Label or Variable. Please enter another string or use existing "
        "string.");
    name_.AskAgain();
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
  const int label = name_.KnownIndex();
  const std::string name = name_.KnownName();
  if (!MayMoveLabel(label, row)) return;
  session_.Table1.SetTextMatrix(row, kLabelColumn, name);
  session_.LabelLineList.Set(label, std::to_string(row));
  session_.LabelPlacedList.Set(label, kYesFlag);
}

bool LabelPlacement::MayMoveLabel(int label, int row) {
  const std::string line = session_.LabelLineList[label];
  if (DecimalValue(session_.LabelPlacedList[label]) == 0 || DecimalValue(line) == row) return true;
  const BoxAnswer answer =
      session_.Ask(BoxIcon::kQuestion,
                   "The string '" + name_.KnownName() + "' is already placed in line # " + line +
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
