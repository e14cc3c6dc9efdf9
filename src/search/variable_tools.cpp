#include "search/variable_tools.h"

#include "program/opcode_cell.h"

namespace quilla {

VariableTools::VariableTools(Session& session, StateMachine& states, VariableBox& box)
    : session_(session), states_(states), box_(box) {
  box_.XXFindButton.Click = [this] { XXFindButton_Click(); };
  box_.XXReplaceButton.Click = [this] { XXReplaceButton_Click(); };
  box_.XXDoneButton.Click = [this] { XXDoneButton_Click(); };
  session_.menu.FindVariable.Click = [this] { states_.ControlTransfer(PanelState::kFindVariable); };
  session_.menu.ReplaceVariable.Click = [this] {
    states_.ControlTransfer(PanelState::kReplaceVariable);
  };
  states_.SetStatus(BoxId::kFindVariable, [this](bool) { OpenFind(); });
  states_.SetStatus(BoxId::kReplaceVariable, [this](bool) { OpenReplace(); });
  TableTask task{.Cancelled = [this] { painter_.CleanVariableUses(); }};
  states_.SetTableTask({PanelState::kFindVariable}, task);
  task.Clicked = [this](int row, int column) { SelectFirst(row, column); };
  states_.SetTableTask({PanelState::kReplaceVariable}, task);
  task.Clicked = [this](int row, int column) { painter_.Toggle(row, column); };
  states_.SetTableTask({PanelState::kVariablePicked}, task);
}

void VariableTools::OpenFind() {
  box_.Reset();
  if (session_.XXCombo.IsEmpty()) {
    TellNoVariables();
    return;
  }
  box_.XXBox.Show();
  box_.name.OpenKnown();
  box_.XXFindButton.Show();
  box_.XXFindButton.MakeDefault();
  box_.XXDoneButton.Show();
}

void VariableTools::OpenReplace() {
  session_.SetTip("Searching for variables . . .");
  if (session_.XXCombo.IsEmpty() || !PaintCandidates()) {
    TellNoVariables();
    return;
  }
  box_.Reset();
  box_.XXDoneButton.Show();
  box_.OfferNewOrKnown(box_.XXReplaceButton);
}

bool VariableTools::PaintCandidates() {
  bool any = false;
  for (int row = 0; row < session_.Table1.Rows(); ++row) {
    if (!painter_.HasOperandOfLength(row, kTwoByteCell)) continue;
    painter_.PaintCandidate(row, kMnemonicColumn);
    any = true;
  }
  return any;
}

void VariableTools::SelectFirst(int row, int column) {
  if (column == kMnemonicColumn && painter_.HasOperand(row)) painter_.Select(row, column);
  states_.ControlTransfer(PanelState::kVariablePicked);
}

void VariableTools::TellNoVariables() {
  session_.ShowInformation("No variables used in program.");
  states_.ReturnToReady();
}

void VariableTools::XXFindButton_Click() {
  const std::string& name = box_.name.KnownName();
  session_.SetTip("Searching for '" + name + "' . . .");
  int uses = 0;
  for (int row = 0; row < session_.Table1.Rows(); ++row) {
    if (painter_.HasOperand(row)) {
      uses += painter_.PaintMatch(row, kMnemonicColumn, session_.OperandOf(row) == name);
    }
  }
  session_.SetTip("Completed searching for '" + name + "'.");
  painter_.TellUses("variable", name, uses);
}

void VariableTools::XXReplaceButton_Click() {
  if (box_.name.IsKnown()) {
    ReplaceSelected(box_.name.KnownName(), session_.XXEqtList[box_.name.KnownIndex()]);
  } else {
    const std::string& name = box_.name.NewName();
    if (session_.XXCombo.Find(name) >= 0) {
      session_.ShowCritical(
          "String already present as Label or Variable. Please enter another label.");
      box_.name.AskAgain();
      return;
    }
    session_.AddVariable(name, kUnknownByte);
    ReplaceSelected(name, kUnknownByte);
  }
  session_.FileChanged = true;
  states_.ControlTransfer(PanelState::kReplaceVariable);
}

void VariableTools::ReplaceSelected(const std::string& name, const std::string& equivalent) {
  for (int row = 0; row < session_.Table1.Rows(); ++row) {
    if (painter_.HasOperand(row) && painter_.IsSelected(row, kMnemonicColumn)) {
      painter_.RenameOperand(
          row, name, WithVariable(session_.Table1.TextMatrix(row, kOpcodeColumn), equivalent));
    }
  }
}

void VariableTools::XXDoneButton_Click() {
  for (int row = 0; row < session_.Table1.Rows(); ++row) {
    if (painter_.HasOperand(row)) painter_.PaintNormal(row, kMnemonicColumn);
  }
  states_.ReturnToReady();
}

}  // namespace quilla
