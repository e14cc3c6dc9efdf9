#include "print/print_info.h"

#include <string>

namespace quilla {

PrintInfo::PrintInfo(Session& session, PrintState& state) : session_(session), state_(state) {
  form_.set_caption("Print Information");
  session_.menu.ViewPrintInfo.Click = [this] { ViewPrintInfo_Click(); };
}

void PrintInfo::ViewPrintInfo_Click() {
  state_.Count(session_);
  const int labels = session_.LabelCombo.Count();
  const int variables = session_.XXCombo.Count();
  const auto show = [](Label& label, int number) { label.set_caption(std::to_string(number)); };
  // The number of the last line, as it always was: one less than the lines that are printed.
  show(ProgramLineLabel_, state_.LastProgramRow);
  show(ProgramPagesLabel_, state_.ProgramPageCount);
  show(LabelsLabel_, labels);
  show(VariablesLabel_, variables);
  show(StringsLabel_, labels + variables);
  show(EquivalentPagesLabel_, state_.TotalPageCount - state_.ProgramPageCount);
  show(TotalPagesLabel_, state_.TotalPageCount);
  session_.outside.event_loop.ShowModal(form_);
}

}  // namespace quilla
