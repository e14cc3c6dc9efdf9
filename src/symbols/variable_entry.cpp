#include "symbols/variable_entry.h"

#include "platform/number_text.h"
#include "program/opcode_cell.h"

namespace quilla {

VariableBox::VariableBox(Session& the_session) : session(the_session) {
  name.SetOtherAcceptButton(XXReplaceButton);
  XXBox.Hide();
}

void VariableBox::Reset() {
  name.Disable();
  for (Button* button : {&XXAcceptButton, &XXFindButton, &XXDoneButton, &XXReplaceButton}) {
    button->Hide();
  }
}

void VariableBox::OfferNewOrKnown(Button& accept) {
  name.Open(accept);
  XXBox.Show();
  accept.Show();
  accept.MakeDefault();
  name.FocusText();
}

VariableEntry::VariableEntry(Session& session, StateMachine& states, EntryLine& line,
                             StringLists& strings, VariableBox& box)
    : session_(session), states_(states), line_(line), strings_(strings), box_(box) {
  box_.XXAcceptButton.Click = [this] { XXAcceptButton_Click(); };
  states_.SetStatus(BoxId::kVariable, [this](bool status) { XXStatus(status); });
}

void VariableEntry::XXStatus(bool status) {
  if (!status) {
    box_.XXBox.Hide();
    return;
  }
  box_.Reset();
  box_.OfferNewOrKnown(box_.XXAcceptButton);
}

void VariableEntry::XXAcceptButton_Click() {
  const PanelState state = session_.CurrentPanelState;
  if (state == PanelState::kByteOperand || state == PanelState::kMviOperand) {
    if (box_.name.IsKnown()) {
      WriteOperand(box_.name.KnownName(), session_.XXEqtList[box_.name.KnownIndex()]);
    } else {
      const std::string& variable = box_.name.NewName();
      if (strings_.IsTaken(variable)) {
        session_.ShowCritical(
            "String already present as Label or Variable. Please enter another string.");
        box_.name.AskAgain();
        return;
      }
      session_.AddVariable(variable, kUnknownByte);
      WriteOperand(variable, kUnknownByte);
    }
  }
  box_.XXBox.Hide();
  line_.Complete();
  states_.ReturnToReady();
}

void VariableEntry::WriteOperand(const std::string& variable, const std::string& equivalent) {
  const std::string_view digits = equivalent;
  line_.AddOperand("   ", variable, VariableBytes(digits.substr(0, kByteDigits)));
}

}  // namespace quilla
