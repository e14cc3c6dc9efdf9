#include "simulator/watch_window_dialog.h"

#include <utility>
#include <vector>

#include "platform/failure.h"

namespace quilla {
namespace {

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
    : machine_(tables_, std::move(show_information)) {
  form_.set_caption("Watch Window");
  form_.Unload = [this] { Form_Unload(); };
  PortAddrList_.Assign(AllBytes());
  ValueList_.Assign(AllBytes());

  ExecuteButton_.Click = [this] { ExecuteButton_Click(); };
  AcceptButton_.Click = [this] { AcceptButton_Click(); };
  AcceptButton_.KeyPress = DigitKeyPress([this](int digit) { NUM_Click(digit); });
  ForceButton_.Click = [this] { ForceButton_Click(); };
  for (Button& line : IButton_) {
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
  PortAddrList_.SelectFirst();
  ValueList_.SelectFirst();
  for (Button& line : IButton_) line.set_caption(kLowLevel);
  AddrLbl_.set_caption(kFirstAddress);
  AcceptButton_.SetFocus();
  StepNoteLabel_.set_caption({});
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
  Attempt([this] { machine_.StartAt(AddrLbl_.caption()); }, kAddressFailed);
}

void WatchWindowDialog::NUM_Click(int index) {
  AddrLbl_.set_caption(ShiftIn(AddrLbl_.caption(), index));
  AcceptButton_.SetFocus();
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
  tables_.SetPort(PortAddrList_.index(), ValueList_.text());
}

void WatchWindowDialog::Attempt(const std::function<void()>& operation, const char* note) {
  StepNoteLabel_.set_caption({});
  try {
    operation();
  } catch (const Failure&) {
    StepNoteLabel_.set_caption(note);
  }
}

}  // namespace quilla
