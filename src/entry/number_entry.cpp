#include "entry/number_entry.h"

#include "isa/instruction_set.h"
#include "platform/number_text.h"

namespace quilla {
namespace {

constexpr const char* kFirstOrigin = "8000";
constexpr int kRestartCount = 8;
constexpr int kRestartStep = 8;  // from one RST opcode to the next

}  // namespace

NumberEntry::NumberEntry(Session& session, StateMachine& states, EntryLine& line, Origins& origins,
                         DataEntry& data)
    : session_(session), states_(states), line_(line), origins_(origins), data_(data) {
  NumberAcceptButton_.Click = [this] { NumberAcceptButton_Click(); };
  NumberAcceptButton_.KeyPress = DigitKeyPress([this](int digit) { NUM_Click(digit); });
  NumberFocusButton_.KeyPress = DigitKeyPress([this](int digit) {
    if (digit < kRestartCount) NUM_Click(digit);
  });
  StartupTimer_.Fire = [this] { StartupTimer_Timer(); };
  NumberBox_.Hide();
  states_.SetStatus(BoxId::kNumber, [this](bool status) { NumberStatus(status); });
}

void NumberEntry::NumberStatus(bool status) {
  NumberBox_.set_visible(status);
  if (!status) return;
  const bool restart = session_.CurrentPanelState == PanelState::kRestart;
  for (int digit = 0; digit < kDigitKeyCount; ++digit) {
    NUM_[digit].set_enabled(!restart || digit < kRestartCount);
  }
  NumberAcceptButton_.set_enabled(!restart);
  if (restart) {
    DataTypeLabel_.set_caption("Number");
    NumberLabel_.set_caption({});
    NumberFocusButton_.SetFocus();
  } else {
    DataTypeLabel_.set_caption("Address");
    NumberLabel_.set_caption(kNoAddress);
    NumberAcceptButton_.MakeDefault();
    StartupTimer_.Enable();  // the box is only about to appear
  }
}

void NumberEntry::StartupTimer_Timer() {
  if (session_.CurrentPanelState == PanelState::kDataReady) {
    data_.AcceptButton().SetFocus();
  } else {
    NumberAcceptButton_.SetFocus();
  }
}

void NumberEntry::NUM_Click(int index) {
  const PanelState state = session_.CurrentPanelState;
  if (state == PanelState::kNewOrigin || state == PanelState::kChangeOrigin) {
    NumberLabel_.set_caption(ShiftIn(NumberLabel_.caption(), index));
    NumberAcceptButton_.SetFocus();
  } else if (index < kRestartCount) {
    const int row = session_.CurrentRow;
    session_.CurrentOpcode += index * kRestartStep;
    session_.Table1.SetTextMatrix(
        row, kMnemonicColumn,
        session_.Table1.TextMatrix(row, kMnemonicColumn) + " " + NUM_[index].caption());
    line_.FinishLine();
    states_.ControlTransfer(PanelState::kReady);
  }
}

void NumberEntry::NUM_MouseMove(int index) {
  if (session_.CurrentPanelState == PanelState::kRestart) {
    NumberLabel_.set_caption(NUM_[index].caption());
  }
}

void NumberEntry::NumberAcceptButton_Click() {
  bool accepted = true;
  if (session_.CurrentPanelState == PanelState::kNewOrigin) {
    accepted = origins_.AddOrigin(NumberLabel_.caption());
  } else if (session_.CurrentPanelState == PanelState::kChangeOrigin) {
    accepted = origins_.ChangeOrigin(NumberLabel_.caption());
  } else {
    line_.Complete();
  }
  if (!accepted) return;
  session_.FileChanged = true;
  NumberBox_.Hide();
  states_.ReturnToReady();
}

void NumberEntry::EnterFirstOrigin() {
  session_.CurrentPanelState = PanelState::kNewOrigin;
  NumberLabel_.set_caption(kFirstOrigin);
  session_.menu.EntryMode.set_caption(kOffersDataMode);
  NumberAcceptButton_Click();
}

}  // namespace quilla
