// A print run: addresses, then the listing, then the equivalents, one page at a time by a chain of
// timers. The panel takes no input meanwhile, so that nothing changes under the run.
#ifndef QUILLA_PRINT_PRINT_RUN_H_
#define QUILLA_PRINT_PRINT_RUN_H_

#include "platform/timer.h"
#include "print/page_layouts.h"
#include "print/print_state.h"
#include "program/session.h"
#include "symbols/address_assignment.h"

namespace quilla {

class PrintRun {
 public:
  PrintRun(Session& session, PrintState& state, AddressAssignment& addresses);

  /// Begins the pages of equivalents.
  void PrintLabel();

 private:
  void PrintFile_Click();
  void PageOption_Click(int index);
  void PrintAddress_Timer();
  void PrintProgram_Timer();
  void SetupTimer_Timer();
  void LabelSetupTimer_Timer();
  /// Whether the page under way is one of those that the user wants.
  bool GoesOut() const;
  /// Has the composed page printed by `print`, or goes on to the next one.
  void SendOrSkip(Timer& print, Timer& setup);
  /// Prints the page and goes on to the next one. A printer that refuses it ends the run.
  void Print(const PageLayout& layout, Timer& setup);
  void End();

  Session& session_;
  PrintState& state_;
  AddressAssignment& addresses_;
  PagePrinter& printer_ = session_.outside.printer;
  PrintPanel PrintPanel_;
  PrintLabelPanel PrintLabelPanel_;

  static constexpr int kStageMs = 10;
  static constexpr int kPrintMs = 20;
  // A listing page has time to settle before it is printed.
  static constexpr int kSettleMs = 2000;
  Clock& clock_ = session_.outside.clock;
  Timer PrintAddress_{clock_, "PrintAddress", kStageMs};
  Timer PrintProgram_{clock_, "PrintProgram", kStageMs};
  Timer SetupTimer_{clock_, "SetupTimer", kSettleMs};
  Timer PrintTimer_{clock_, "PrintTimer", kPrintMs};
  Timer LabelSetupTimer_{clock_, "LabelSetupTimer", kStageMs};
  Timer LabelPrintTimer_{clock_, "LabelPrintTimer", kPrintMs};
};

}  // namespace quilla

#endif  // QUILLA_PRINT_PRINT_RUN_H_
