// The equivalents tool: the numbers behind labels and variables. Edits stay in the dialog's
// tables until Done; closing the window by its frame drops them.
#ifndef QUILLA_SYMBOLS_RENUMBER_DIALOG_H_
#define QUILLA_SYMBOLS_RENUMBER_DIALOG_H_

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/form.h"
#include "platform/timer.h"
#include "program/digit_keys.h"
#include "program/session.h"

namespace quilla {

/// One page of the dialog: a table of strings, and the box in which one is edited.
class EquivalentsPage {
 public:
  /// The vocabulary names of a page's controls, and the display that an edit starts from.
  struct Names {
    const char* frame;
    const char* table;
    const char* box;
    const char* name_label;
    const char* display;
    const char* accept;
    const char* timer;
    const char* zero;
  };

  EquivalentsPage(Session& session, Form& form, const Names& names,
                  std::function<void()> box_changed, std::function<void(int)> digit);

  /// Fills the table from a list of strings and their equivalents.
  void Load(const TextList& names, const TextList& equivalents);
  void Unload() { DelayTimer_.Disable(); }
  void AddDigit(int digit);
  /// Whether the user has the page's edit box before them.
  bool IsEditing() const { return EditBox_.IsVisible(); }

  Grid& table() { return Table_; }
  void set_visible(bool visible) { Frame_.set_visible(visible); }

 private:
  static constexpr int kColumns = 3;
  static constexpr int kFocusDelayMs = 10;

  void Table_Click();
  void AcceptButton_Click();

  Session& session_;
  const Names names_;
  std::function<void()> box_changed_;

  Box Frame_;
  Grid Table_{&Frame_, names_.table, kColumns};
  Box EditBox_{&Frame_, names_.box};
  Label NameLabel_{&EditBox_, names_.name_label};
  Label Display_{&EditBox_, names_.display, names_.zero};
  Button AcceptButton_{&EditBox_, names_.accept, "Accept"};
  Timer DelayTimer_{session_.outside.clock, names_.timer, kFocusDelayMs};
};

class RenumberDialog {
 public:
  explicit RenumberDialog(Session& session);

  Form& form() { return form_; }

 private:
  void EqtOption_Click();
  void Form_Load();
  void ShowPage(bool labels);
  void NUM_Click(int index);
  void ShowDigitKeys();
  void DoneButton_Click();
  void TakeLabels();
  void TakeVariables();

  Session& session_;
  Form form_{kRenumberDialog};
  Option LabelsOption_{&form_, "LabelsOption", "&Labels"};
  Option VariablesOption_{&form_, "VariablesOption", "&Variables"};
  EquivalentsPage labels_{session_,
                          form_,
                          {.frame = "LabelFrame",
                           .table = "LabelTable",
                           .box = "EqtBox",
                           .name_label = "LabelLabel",
                           .display = "EqtLabel",
                           .accept = "EqtAcceptButton",
                           .timer = "DelayTimer",
                           .zero = "0000"},
                          [this] { ShowDigitKeys(); },
                          [this](int digit) { NUM_Click(digit); }};
  EquivalentsPage variables_{session_,
                             form_,
                             {.frame = "VariableFrame",
                              .table = "VariableTable",
                              .box = "XXBox",
                              .name_label = "VariableLabel",
                              .display = "XXLabel",
                              .accept = "XXAcceptButton",
                              .timer = "XXDelayTimer",
                              .zero = "00"},
                             [this] { ShowDigitKeys(); },
                             [this](int digit) { NUM_Click(digit); }};
  Box DigitBox_{&form_, "DigitBox"};
  DigitKeys NUM_{&DigitBox_, "NUM", [this](int digit) { NUM_Click(digit); }};
  Button DoneButton_{&form_, "DoneButton", "Done"};
};

}  // namespace quilla

#endif  // QUILLA_SYMBOLS_RENUMBER_DIALOG_H_
