#include "simulator/watch_window_dialog.h"

#include <utility>
#include <vector>

#include "platform/failure.h"

namespace quilla {
namespace {

constexpr const char* kLowLevel = "0";
constexpr const char* kHighLevel = "1";
constexpr const char* kFirstAddress = "0000";

constexpr const char* kNoInstruction = "Enter a starting address and press OK.";
constexpr const char* kStepFailed = "This instruction could not be carried out.";
constexpr const char* kAddressFailed = "The instruction at this address could not be read.";

std::vector<std::string> AllBytes() {
  constexpr int kBytes = 0x100;
  std::vector<std::string> texts;
  texts.reserve(kBytes);
  for (int byte = 0; byte < kBytes; ++byte) texts.push_back(PaddedHexText(byte, kByteDigits));
  return texts;
}

}  // namespace

WatchWindowDialog::WatchWindowDialog(std::function<void(const std::string&)> show_information)
    : machine_(tables_, std::move(show_information)),
      IButton{Button(&form_, "IButton", kLowLevel, kRowTrap),
              Button(&form_, "IButton", kLowLevel, kRowRst75),
              Button(&form_, "IButton", kLowLevel, kRowRst65),
              Button(&form_, "IButton", kLowLevel, kRowRst55),
              Button(&form_, "IButton", kLowLevel, kRowIntr)},
      arrows_{Box(&form_, "TRAP"), Box(&form_, "RST75"), Box(&form_, "RST65"), Box(&form_, "RST55"),
              Box(&form_, "INTR")},
      NUM(&AddrBox, "NUM", [this](int digit) { NUM_Click(digit); }) {
  form_.set_caption("Watch Window");
  form_.Unload = [this] { Form_Unload(); };
  PortAddrList.Assign(AllBytes());
  ValueList.Assign(AllBytes());

  ExecuteButton.Click = [this] { ExecuteButton_Click(); };
  AcceptButton.Click = [this] { AcceptButton_Click(); };
  AcceptButton.KeyPress = DigitKeyPress([this](int digit) { NUM_Click(digit); });
  ForceButton.Click = [this] { ForceButton_Click(); };
  for (Button& line : IButton) {
    line.MouseDown = [this, &line] { IButton_MouseDown(line.index()); };
    line.MouseUp = [this, &line] { IButton_MouseUp(line.index()); };
  }
}

void WatchWindowDialog::Load() {
  if (loaded_) return;
  loaded_ = true;
  Form_Load();
}

void WatchWindowDialog::Form_Load() {
  tables_.Load();
  machine_.Reset();
  PortAddrList.SelectFirst();
  ValueList.SelectFirst();
  for (Button& line : IButton) line.set_caption(kLowLevel);
  AddrLbl.set_caption(kFirstAddress);
  AcceptButton.SetFocus();
  StepNoteLabel.set_caption({});
}

void WatchWindowDialog::Form_Unload() {
  tables_.Empty();
  loaded_ = false;
}

void WatchWindowDialog::ExecuteButton_Click() {
  if (machine_.Halted) return;
  const bool has_instruction = !tables_.OpcodeText().empty();
  Attempt([this] { machine_.Execute(); }, has_instruction ? kStepFailed : kNoInstruction);
}

void WatchWindowDialog::AcceptButton_Click() {
  Attempt([this] { machine_.StartAt(AddrLbl.caption()); }, kAddressFailed);
}

void WatchWindowDialog::NUM_Click(int index) {
  AddrLbl.set_caption(ShiftIn(AddrLbl.caption(), index));
  AcceptButton.SetFocus();
}

void WatchWindowDialog::IButton_MouseDown(int index) {
  Button& line = LineButton(index);
  // RST 7.5 is a pulse that lasts as long as its key is held; the other lines toggle.
  const bool high = index == kRowRst75 || line.caption() == kLowLevel;
  line.set_caption(high ? kHighLevel : kLowLevel);
}

void WatchWindowDialog::IButton_MouseUp(int index) {
  if (index == kRowRst75) LineButton(index).set_caption(kLowLevel);
}

void WatchWindowDialog::ForceButton_Click() {
  tables_.SetPort(PortAddrList.index(), ValueList.text());
}

void WatchWindowDialog::Attempt(const std::function<void()>& operation, const char* note) {
  StepNoteLabel.set_caption({});
  try {
    operation();
  } catch (const Failure&) {
    StepNoteLabel.set_caption(note);
  }
}

}  // namespace quilla
