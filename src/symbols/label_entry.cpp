#include "symbols/label_entry.h"

#include "program/opcode_cell.h"

namespace quilla {

LabelEntry::LabelEntry(Session& session, StateMachine& states, EntryLine& line,
                       StringLists& strings)
    : session_(session), states_(states), line_(line), strings_(strings) {
  name_.accept_button().Click = [this] { LabelAcceptButton_Click(); };
  LabelBox_.Hide();
  states_.SetStatus(BoxId::kLabel, [this](bool status) { LabelStatus(status); });
}

void LabelEntry::LabelStatus(bool status) {
  LabelBox_.set_visible(status);
  if (!status) return;
  name_.Open();
  name_.accept_button().MakeDefault();
  name_.FocusText();
}

void LabelEntry::LabelAcceptButton_Click() {
  const PanelState state = session_.CurrentPanelState;
  if (state == PanelState::kLabelOperand || state == PanelState::kLxiOperand) {
    if (name_.IsKnown()) {
      WriteOperand(name_.KnownName(), session_.LabelEqtList[name_.KnownIndex()]);
    } else {
      const std::string& label = name_.NewName();
      if (strings_.IsTaken(label)) {
        session_.ShowCritical(
            "String already used as Label or Variable. Please enter another label.");
        name_.AskAgain();
        return;
      }
      session_.LabelEqtList.Add(kUnknownAddress);
      session_.LabelCombo.Add(label);
      WriteOperand(label, kUnknownAddress);
    }
  }
  LabelBox_.Hide();
  line_.Complete();
  strings_.UpdateLabels();
  states_.ReturnToReady();
}

void LabelEntry::WriteOperand(const std::string& label, const std::string& equivalent) {
  line_.AddOperand("  ", label, LabelBytes(equivalent));
}

}  // namespace quilla
