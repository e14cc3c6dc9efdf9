#include "print/print_run.h"

#include "platform/failure.h"

namespace quilla {
namespace {

enum PageFilter : int { kAllPages, kOddPages, kEvenPages };

}  // namespace

PrintRun::PrintRun(Session& session, PrintState& state, AddressAssignment& addresses)
    : session_(session), state_(state), addresses_(addresses) {
  session_.menu.PrintFile.Click = [this] { PrintFile_Click(); };
  for (MenuEntry& option : session_.menu.PageOption) {
    option.Click = [this, &option] { PageOption_Click(option.index()); };
  }
  PrintAddress_.Fire = [this] { PrintAddress_Timer(); };
  PrintProgram_.Fire = [this] { PrintProgram_Timer(); };
  SetupTimer_.Fire = [this] { SetupTimer_Timer(); };
  LabelSetupTimer_.Fire = [this] { LabelSetupTimer_Timer(); };
  PrintTimer_.Fire = [this] { Print(PrintPanel_, SetupTimer_); };
  LabelPrintTimer_.Fire = [this] { Print(PrintLabelPanel_, LabelSetupTimer_); };
}

void PrintRun::PrintFile_Click() {
  const BoxAnswer answer = session_.Ask(
      BoxIcon::kInformation,
      "Check the default settings of the printer and click 'OK' to print. To cancel print, click "
      "'Cancel'",
      BoxButtons::kOkCancel);
  if (answer == BoxAnswer::kCancel || !printer_.BeginRun(session_.FileName)) return;
  session_.ProgrammingPanel.set_pointer(FormPointer::kBusy);
  session_.ProgrammingPanel.set_enabled(false);
  session_.SetTip("Assigning addresses . . .");
  PrintAddress_.Enable();
}

void PrintRun::PageOption_Click(int index) {
  for (MenuEntry& option : session_.menu.PageOption) {
    option.set_checked(option.index() == index);
  }
}

void PrintRun::PrintAddress_Timer() {
  addresses_.Assign_Address(false);
  if (session_.AddressError) {
    // The panel stays as it is, busy and without input.
    session_.SetTip("Print aborted.");
    printer_.EndRun();
    return;
  }
  session_.SetTip("Composing print information.");
  PrintProgram_.Enable();
}

void PrintRun::PrintProgram_Timer() {
  state_.Count(session_);
  state_.PrintPageNumber = 1;
  state_.PrintCursor = 0;
  SetupTimer_.Enable();
}

void PrintRun::SetupTimer_Timer() {
  if (state_.PrintPageNumber > state_.ProgramPageCount) {
    PrintLabel();
    return;
  }
  state_.PrintCursor += PrintPanel_.Fill(session_, state_);
  SendOrSkip(PrintTimer_, SetupTimer_);
}

void PrintRun::PrintLabel() {
  state_.PrintCursor = 0;
  LabelSetupTimer_.Enable();
}

void PrintRun::LabelSetupTimer_Timer() {
  if (state_.PrintPageNumber > state_.TotalPageCount) {
    End();
    return;
  }
  state_.PrintCursor += PrintLabelPanel_.Fill(session_, state_);
  SendOrSkip(LabelPrintTimer_, LabelSetupTimer_);
}

bool PrintRun::GoesOut() const {
  const auto& filter = session_.menu.PageOption;
  const bool is_odd = state_.PrintPageNumber % 2 != 0;
  if (filter[kOddPages].checked()) return is_odd;
  if (filter[kEvenPages].checked()) return !is_odd;
  return true;
}

void PrintRun::SendOrSkip(Timer& print, Timer& setup) {
  if (GoesOut()) {
    print.Enable();
    return;
  }
  ++state_.PrintPageNumber;
  setup.Enable();
}

void PrintRun::Print(const PageLayout& layout, Timer& setup) {
  ++state_.PrintPageNumber;
  try {
    printer_.PrintForm(layout.form);
  } catch (const Failure&) {
    End();
    return;
  }
  setup.Enable();
}

void PrintRun::End() {
  printer_.EndRun();
  session_.ProgrammingPanel.set_pointer(FormPointer::kNormal);
  session_.ProgrammingPanel.set_enabled(true);
}

}  // namespace quilla
