#include "search/replace_label.h"

#include "platform/number_text.h"
#include "program/opcode_cell.h"
#include "search/find_label.h"

namespace quilla {

ReplaceLabelTool::ReplaceLabelTool(Session& session, StateMachine& states, StringLists& strings,
                                   const LabelPlacement& placement)
    : session_(session), states_(states), strings_(strings), placement_(placement) {
  name_.accept_button().set_enabled(false);
  name_.accept_button().Click = [this] { ReplaceAcceptButton_Click(); };
  ReplaceDoneButton_.Click = [this] { ReplaceDoneButton_Click(); };
  ReplaceBox_.Hide();
  session_.menu.ReplaceLabel.Click = [this] { states_.ControlTransfer(PanelState::kReplaceLabel); };
  states_.SetStatus(BoxId::kReplace, [this](bool status) { ReplaceStatus(status); });
  states_.SetPicked(PanelState::kReplacePicked, [this] { name_.RowPicked(); });
  TableTask task{.Clicked = [this](int row, int column) { SelectFirst(row, column); },
                 .Cancelled = [this] { painter_.CleanLabelUses(); },
                 .LiveColumns = {kLabelColumn, kMnemonicColumn}};
  states_.SetTableTask({PanelState::kReplaceLabel}, task);
  task.Clicked = [this](int row, int column) { Toggle(row, column); };
  states_.SetTableTask({PanelState::kReplacePicked}, task);
}

void ReplaceLabelTool::ReplaceStatus(bool status) {
  if (!status) {
    ReplaceBox_.Hide();
    return;
  }
  session_.Table1.set_selection_display(SelectionDisplay::kCell);
  strings_.UpdateLabels();
  if (!OfferLabels(session_, states_)) return;
  PaintCandidates();
  ReplaceBox_.Show();
  name_.Open();
}

void ReplaceLabelTool::PaintCandidates() {
  for (int row = 0; row < session_.Table1.Rows(); ++row) {
    if (painter_.HasLabel(row)) painter_.PaintCandidate(row, kLabelColumn);
    if (painter_.HasOperandOfLength(row, kThreeByteCell)) {
      painter_.PaintCandidate(row, kMnemonicColumn);
    }
  }
}

void ReplaceLabelTool::SelectFirst(int row, int column) {
  if (session_.IsOrigin(row)) return;
  const bool label = column == kLabelColumn && painter_.HasLabel(row);
  const bool operand = column == kMnemonicColumn && painter_.HasOperand(row);
  if (label || operand) painter_.Select(row, column);
  states_.ControlTransfer(PanelState::kReplacePicked);
}

void ReplaceLabelTool::Toggle(int row, int column) {
  if (session_.IsOrigin(row)) return;
  const bool selects = painter_.IsCandidate(row, column);
  painter_.Toggle(row, column);
  if (selects && column != kMnemonicColumn) LeaveOnlyLabelSelected(row);
}

void ReplaceLabelTool::LeaveOnlyLabelSelected(int row) {
  for (int other = 1; other < session_.Table1.Rows(); ++other) {
    if (other != row && painter_.HasLabel(other)) painter_.PaintCandidate(other, kLabelColumn);
  }
}

void ReplaceLabelTool::ReplaceAcceptButton_Click() {
  if (name_.IsKnown()) {
    ReplaceByKnown();
  } else if (strings_.IsTaken(placement_.NewName())) {  // the place tool's box decides
    session_.ShowCritical("The string '" + name_.NewName() +
                          "' already exists. Please enter another string.");
    name_.AskAgain();
    return;
  } else {
    ReplaceByNew(name_.NewName());
  }
  states_.ControlTransfer(PanelState::kReplaceLabel);  // opens afresh, with the lists up to date
  session_.FileChanged = true;
}

void ReplaceLabelTool::ReplaceByKnown() {
  const int label = name_.KnownIndex();
  const std::string name = name_.KnownName();
  bool label_done = false;
  for (int row = 0; row < session_.Table1.Rows(); ++row) {
    if (!label_done && painter_.HasLabel(row) && painter_.IsSelected(row, kLabelColumn)) {
      MoveKnownLabel(label, name, row);
      label_done = true;
    }
    if (painter_.HasOperand(row) && painter_.IsSelected(row, kMnemonicColumn)) {
      painter_.RenameOperand(row, name, session_.Table1.TextMatrix(row, kOpcodeColumn));
      session_.LabelUsedList.Set(session_.LabelCombo.Count(), kYesFlag);
    }
  }
}

void ReplaceLabelTool::MoveKnownLabel(int label, const std::string& name, int row) {
  const bool placed = DecimalValue(session_.LabelPlacedList[label]) != 0;
  const std::string line = session_.LabelLineList[label];
  const auto old_row = static_cast<int>(DecimalValue(line));
  if (placed && old_row != row) {
    const BoxAnswer answer =
        session_.Ask(BoxIcon::kQuestion,
                     "The label '" + name + "' is already placed in line # " + line +
                         ". Do you want to reposition it to line # " + std::to_string(row) + "?",
                     BoxButtons::kYesNo);
    if (answer == BoxAnswer::kNo) return;
  }
  if (placed) {
    session_.Table1.SetTextMatrix(old_row, kLabelColumn, {});
    painter_.PaintNormal(old_row, kLabelColumn);
  }
  session_.Table1.SetTextMatrix(row, kLabelColumn, name);
  session_.LabelLineList.Set(label, std::to_string(row));
}

void ReplaceLabelTool::ReplaceByNew(const std::string& name) {
  bool label_done = false;
  bool listed = false;
  for (int row = 0; row < session_.Table1.Rows(); ++row) {
    if (!label_done && painter_.HasLabel(row) && painter_.IsSelected(row, kLabelColumn)) {
      session_.Table1.SetTextMatrix(row, kLabelColumn, name);
      if (!listed) {
        session_.AddLabel({.name = name,
                           .placed = kYesFlag,
                           .used = kNoFlag,
                           .line = kYesFlag,  // whatever the row: the lists are rebuilt at the end
                           .equivalent = kUnknownAddress});
      }
      label_done = true;
      listed = true;
    }
    if (painter_.HasOperand(row) && painter_.IsSelected(row, kMnemonicColumn)) {
      painter_.RenameOperand(
          row, name, WithLabel(session_.Table1.TextMatrix(row, kOpcodeColumn), kUnknownAddress));
      if (!listed) {
        session_.AddLabel({.name = name,
                           .placed = kNoFlag,
                           .used = kYesFlag,
                           .line = kNoFlag,
                           .equivalent = kUnknownAddress});
      }
      listed = true;
    }
  }
}

void ReplaceLabelTool::ReplaceDoneButton_Click() {
  for (int row = 0; row < session_.Table1.Rows(); ++row) {
    const bool labelled = !session_.Table1.TextMatrix(row, kLabelColumn).empty();
    if (labelled) painter_.PaintNormal(row, kLabelColumn);
    if (painter_.HasOperand(row)) painter_.PaintNormal(row, kMnemonicColumn);
  }
  states_.ReturnToReady();
}

}  // namespace quilla
