#include "symbols/label_entry.h"

#include "program/opcode_cell.h"
#include "symbols/string_inputs.h"

namespace quilla {

LabelEntry::LabelEntry(Session& session, StateMachine& states, EntryLine& line,
                       StringLists& strings)
    : session_(session),
      states_(states),
      line_(line),
      strings_(strings),
      LabelBox_(&session.ProgrammingPanel, "LabelBox"),
      LabelHeading_(&LabelBox_, "LabelHeading", "Label"),
      NewLabelOption_(&LabelBox_, "NewLabelOption", "New:"),
      LabelText_(&LabelBox_, "LabelText", kLongestName),
      ExistingLabelOption_(&LabelBox_, "ExistingLabelOption", "Existing:"),
      LabelAcceptButton_(&LabelBox_, "LabelAcceptButton", "&Accept") {
  session_.LabelCombo.PlaceIn(&LabelBox_);
  session_.LabelCombo.Show();
  NewLabelOption_.Click = [this] { NewLabelOption_Click(); };
  ExistingLabelOption_.Click = [this] { ExistingLabelOption_Click(); };
  LabelText_.TextChange = [this] { LabelText_Change(); };
  LabelAcceptButton_.Click = [this] { LabelAcceptButton_Click(); };
  LabelBox_.Hide();
  states_.SetStatus(BoxId::kLabel, [this](bool status) { LabelStatus(status); });
}

void LabelEntry::LabelStatus(bool status) {
  LabelBox_.set_visible(status);
  if (!status) return;
  ExistingLabelOption_.set_enabled(!session_.LabelCombo.IsEmpty());
  session_.LabelCombo.SelectFirst();
  NewLabelOption_.set_enabled(true);
  NewLabelOption_.set_checked(true);
  OfferNewName(LabelText_, session_.LabelCombo);
  LabelAcceptButton_.set_enabled(false);
  LabelAcceptButton_.MakeDefault();
  LabelText_.SetFocus();
}

void LabelEntry::NewLabelOption_Click() {
  OfferNewName(LabelText_, session_.LabelCombo);
  LabelText_.SetFocus();
  LabelAcceptButton_.set_enabled(false);
}

void LabelEntry::ExistingLabelOption_Click() {
  OfferKnownName(LabelText_, session_.LabelCombo);
  session_.LabelCombo.SetFocus();
  LabelAcceptButton_.set_enabled(true);
  LabelAcceptButton_.MakeDefault();
}

void LabelEntry::LabelText_Change() {
  if (LabelText_.enabled()) LabelAcceptButton_.set_enabled(IsGoodName(LabelText_.text()));
}

void LabelEntry::LabelAcceptButton_Click() {
  const PanelState state = session_.CurrentPanelState;
  if (state == PanelState::kLabelOperand || state == PanelState::kLxiOperand) {
    if (ExistingLabelOption_.checked()) {
      WriteOperand(session_.LabelCombo.text(), session_.LabelEqtList[session_.LabelCombo.index()]);
    } else {
      const std::string label = LabelText_.text();
      if (strings_.IsTaken(label)) {
        session_.ShowCritical(
            "String already used as Label or Variable. Please enter another label.");
        LabelText_.set_text({});
        LabelText_.SetFocus();
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
  Grid& table = session_.Table1;
  const int row = session_.CurrentRow;
  table.SetTextMatrix(row, kMnemonicColumn, table.TextMatrix(row, kMnemonicColumn) + "  " + label);
  session_.StringTable.SetTextMatrix(row, 0, label);
  table.SetTextMatrix(row, kOpcodeColumn,
                      table.TextMatrix(row, kOpcodeColumn) + LabelBytes(equivalent));
}

}  // namespace quilla
