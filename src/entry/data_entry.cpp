#include "entry/data_entry.h"

#include "program/default_comment.h"
#include "symbols/address_assignment.h"

namespace quilla {
DataEntry::DataEntry(Session& session, StateMachine& states, EntryLine& line)
    : session_(session), states_(states), line_(line) {
  DataAcceptButton_.Click = [this] { DataAcceptButton_Click(); };
  DataAcceptButton_.KeyPress = DigitKeyPress([this](int digit) { DataNum_Click(digit); });
  DataBox_.Hide();
  session_.menu.EntryMode.Click = [this] { EntryMode_Click(); };
  states_.SetStatus(BoxId::kData, [this](bool status) { DataStatus(status); });
}

void DataEntry::DataStatus(bool status) {
  DataBox_.set_visible(status);
  if (!status || session_.CurrentPanelState != PanelState::kDataReady) return;
  DataLabel_.set_caption(kNoByte);
  DataAcceptButton_.MakeDefault();
  DataAcceptButton_.SetFocus();
}

void DataEntry::EntryMode_Click() {
  MenuEntry& mode = session_.menu.EntryMode;
  mode.set_caption(mode.caption() == kOffersProgramMode ? kOffersDataMode : kOffersProgramMode);
  states_.ReturnToReady();
}

void DataEntry::DataNum_Click(int index) {
  DataLabel_.set_caption(ShiftIn(DataLabel_.caption(), index));
  DataAcceptButton_.SetFocus();
}

void DataEntry::DataAcceptButton_Click() {
  ClearAddress();
  const int row = session_.CurrentRow;
  session_.Table1.SetTextMatrix(row, kMnemonicColumn, kDataMnemonic);
  session_.Table1.SetTextMatrix(row, kOpcodeColumn, DataLabel_.caption());
  ApplyDefaultComment(session_, row);
  DataAcceptButton_.SetFocus();
  line_.MoveOn();
  DataLabel_.set_caption(kNoByte);
}

}  // namespace quilla
