// The program from its splash to its end: it shows the splash, makes the main panel a moment
// later, and knows every window by name.
#ifndef QUILLA_PANEL_QUILLA_H_
#define QUILLA_PANEL_QUILLA_H_

#include <memory>
#include <string>
#include <vector>

#include "panel/programming_panel.h"
#include "panel/version.h"
#include "platform/form.h"
#include "platform/outside.h"
#include "platform/timer.h"

namespace quilla {

class Quilla {
 public:
  explicit Quilla(Outside& outside);

  /// Shows the splash; its timer, which runs from its loading on, does the rest.
  void Start();

  /// Makes the main panel ahead of its time, for whoever has nothing else to do while the splash
  /// stands; nothing if it is made.
  void MakePanel();

  /// The main panel; null until it has been made.
  ProgrammingPanel* panel() { return panel_.get(); }
  /// All windows, open or not.
  std::vector<Form*> Forms();

 private:
  static constexpr int kSplashMs = 20;

  void OpenTimer_Timer();

  Outside& outside_;
  Form OpenForm_{kOpenForm};
  Label DescriptionLabel_{&OpenForm_, "DescriptionLabel",
                          "Editor Assembler Disassembler Simulator"};
  Label VersionLabel_{&OpenForm_, "VersionLabel", std::string("Version ") + kVersion};
  Timer OpenTimer_{outside_.clock, "OpenTimer", kSplashMs};
  std::unique_ptr<ProgrammingPanel> panel_;
};

}  // namespace quilla

#endif  // QUILLA_PANEL_QUILLA_H_
