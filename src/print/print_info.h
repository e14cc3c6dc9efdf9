// The dialog that tells before a print how much there is to print.
#ifndef QUILLA_PRINT_PRINT_INFO_H_
#define QUILLA_PRINT_PRINT_INFO_H_

#include "platform/button.h"
#include "platform/form.h"
#include "print/print_state.h"
#include "program/session.h"

namespace quilla {

class PrintInfo {
 public:
  PrintInfo(Session& session, PrintState& state);

  Form& form() { return form_; }

 private:
  void ViewPrintInfo_Click();

  Session& session_;
  PrintState& state_;

  Form form_{kPrintInfo};
  Label ProgramLineCaption_{&form_, "ProgramLineCaption", "Number of lines of program:"};
  Label ProgramLineLabel_{&form_, "ProgramLineLabel"};
  Label ProgramPagesCaption_{&form_, "ProgramPagesCaption", "Number of pages for program:"};
  Label ProgramPagesLabel_{&form_, "ProgramPagesLabel"};
  Label LabelsCaption_{&form_, "LabelsCaption", "Number of labels:"};
  Label LabelsLabel_{&form_, "LabelsLabel"};
  Label VariablesCaption_{&form_, "VariablesCaption", "Number of variables:"};
  Label VariablesLabel_{&form_, "VariablesLabel"};
  Label StringsCaption_{&form_, "StringsCaption", "Total Number of strings:"};
  Label StringsLabel_{&form_, "StringsLabel"};
  Label EquivalentPagesCaption_{&form_, "EquivalentPagesCaption",
                                "Number of pages for equivalents:"};
  Label EquivalentPagesLabel_{&form_, "EquivalentPagesLabel"};
  Label TotalPagesCaption_{&form_, "TotalPagesCaption", "Total Number of pages:"};
  Label TotalPagesLabel_{&form_, "TotalPagesLabel"};
};

}  // namespace quilla

#endif  // QUILLA_PRINT_PRINT_INFO_H_
