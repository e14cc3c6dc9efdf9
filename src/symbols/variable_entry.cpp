#include "symbols/variable_entry.h"

#include "platform/number_text.h"
#include "program/opcode_cell.h"
#include "symbols/string_inputs.h"

namespace quilla {

VariableBox::VariableBox(Session& session)
    : XXBox(&session.ProgrammingPanel, "XXBox"),
      XXHeading(&XXBox, "XXHeading", "Variable"),
      NewXXOption(&XXBox, "NewXXOption", "New:"),
      XXText(&XXBox, "XXText", kLongestName),
      ExistingXXOption(&XXBox, "ExistingXXOption", "Existing:"),
      XXCombo(session.XXCombo),
      XXAcceptButton(&XXBox, "XXAcceptButton", "Accept"),
      XXFindButton(&XXBox, "XXFindButton", "&Find"),
      XXReplaceButton(&XXBox, "XXReplaceButton", "&Replace"),
      XXDoneButton(&XXBox, "XXDoneButton", "Done") {
  XXCombo.PlaceIn(&XXBox);
  XXCombo.Show();
  XXBox.Hide();
}

void VariableBox::Reset() {
  NewXXOption.set_enabled(false);
  ExistingXXOption.set_enabled(false);
  XXText.set_enabled(false);
  for (Button* button : {&XXAcceptButton, &XXFindButton, &XXDoneButton, &XXReplaceButton}) {
    button->Hide();
  }
}

void VariableBox::OfferNewOrKnown(Button& accept) {
  ExistingXXOption.set_enabled(!XXCombo.IsEmpty());
  XXCombo.SelectFirst();
  NewXXOption.set_enabled(true);
  NewXXOption.set_checked(true);
  OfferNewName(XXText, XXCombo);
  XXBox.Show();
  accept.Show();
  accept.set_enabled(false);
  accept.MakeDefault();
}

VariableEntry::VariableEntry(Session& session, StateMachine& states, EntryLine& line,
                             StringLists& strings, VariableBox& box)
    : session_(session), states_(states), line_(line), strings_(strings), box_(box) {
  box_.NewXXOption.Click = [this] { NewXXOption_Click(); };
  box_.ExistingXXOption.Click = [this] { ExistingXXOption_Click(); };
  box_.XXText.TextChange = [this] { XXText_Change(); };
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
  box_.XXText.SetFocus();
}

void VariableEntry::NewXXOption_Click() {
  OfferNewName(box_.XXText, box_.XXCombo);
  box_.XXText.SetFocus();
  SetAcceptable(false);
}

void VariableEntry::ExistingXXOption_Click() {
  OfferKnownName(box_.XXText, box_.XXCombo);
  box_.XXCombo.SetFocus();
  const PanelState state = session_.CurrentPanelState;
  const bool replacing =
      state == PanelState::kReplaceVariable || state == PanelState::kVariablePicked;
  Button& accept = replacing ? box_.XXReplaceButton : box_.XXAcceptButton;
  accept.set_enabled(true);
  accept.MakeDefault();
}

void VariableEntry::XXText_Change() {
  if (box_.XXText.enabled()) SetAcceptable(IsGoodName(box_.XXText.text()));
}

void VariableEntry::SetAcceptable(bool acceptable) {
  box_.XXAcceptButton.set_enabled(acceptable);
  box_.XXReplaceButton.set_enabled(acceptable);
}

void VariableEntry::XXAcceptButton_Click() {
  const PanelState state = session_.CurrentPanelState;
  if (state == PanelState::kByteOperand || state == PanelState::kMviOperand) {
    if (box_.ExistingXXOption.checked()) {
      WriteOperand(box_.XXCombo.text(), session_.XXEqtList[box_.XXCombo.index()]);
    } else {
      const std::string variable = box_.XXText.text();
      if (strings_.IsTaken(variable)) {
        session_.ShowCritical(
            "String already present as Label or Variable. Please enter another string.");
        box_.XXText.set_text({});
        box_.XXText.SetFocus();
        return;
      }
      session_.XXEqtList.Add(kUnknownByte);
      session_.XXCombo.Add(variable);
      WriteOperand(variable, kUnknownByte);
    }
  }
  box_.XXBox.Hide();
  line_.Complete();
  states_.ReturnToReady();
}

void VariableEntry::WriteOperand(const std::string& variable, const std::string& equivalent) {
  Grid& table = session_.Table1;
  const int row = session_.CurrentRow;
  table.SetTextMatrix(row, kMnemonicColumn,
                      table.TextMatrix(row, kMnemonicColumn) + "   " + variable);
  session_.StringTable.SetTextMatrix(row, 0, variable);
  table.SetTextMatrix(row, kOpcodeColumn,
                      table.TextMatrix(row, kOpcodeColumn) +
                          VariableBytes(std::string_view(equivalent).substr(0, kByteDigits)));
}

}  // namespace quilla
