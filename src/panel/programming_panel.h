// The main panel: it makes the parts, owns them and joins them. It has no logic of its own.
#ifndef QUILLA_PANEL_PROGRAMMING_PANEL_H_
#define QUILLA_PANEL_PROGRAMMING_PANEL_H_

#include <array>
#include <vector>

#include "assembler/assembler.h"
#include "disassembler/data_dialog.h"
#include "entry/cancel_action.h"
#include "entry/comment_tool.h"
#include "entry/data_entry.h"
#include "entry/instruction_entry.h"
#include "entry/new_file.h"
#include "entry/number_entry.h"
#include "entry/register_entry.h"
#include "entry/row_clipboard.h"
#include "entry/table_clicks.h"
#include "entry/write_mode.h"
#include "formats/project_file.h"
#include "formats/rescue_file.h"
#include "link/download.h"
#include "link/port_menu.h"
#include "link/upload.h"
#include "platform/form.h"
#include "print/print_comment.h"
#include "print/print_info.h"
#include "print/print_run.h"
#include "print/print_state.h"
#include "program/entry_line.h"
#include "program/quit.h"
#include "program/rows.h"
#include "program/session.h"
#include "program/state_machine.h"
#include "search/find_label.h"
#include "search/replace_label.h"
#include "search/variable_tools.h"
#include "simulator/simulation_start.h"
#include "simulator/watch_window_dialog.h"
#include "symbols/address_assignment.h"
#include "symbols/label_entry.h"
#include "symbols/label_placement.h"
#include "symbols/origins.h"
#include "symbols/renumber_dialog.h"
#include "symbols/string_lists.h"
#include "symbols/variable_entry.h"

namespace quilla {

class ProgrammingPanel {
 public:
  explicit ProgrammingPanel(Outside& outside);

  Session& session() { return session_; }
  RescueFile& rescue() { return rescue_; }
  Form& form() { return session_.ProgrammingPanel; }
  /// The dialogs that belong to the panel, open or not.
  std::vector<Form*> Dialogs() {
    return {&equivalents_.form(), &watch_window_.form(), &print_info_.form(), &data_dialog_.form()};
  }

 private:
  void Form_Load();

  Session session_;
  Rows rows_{session_};
  RescueFile rescue_{session_};
  StateMachine states_{session_};
  EntryLine line_{session_, rows_};
  RegisterEntry registers_{session_, states_, line_};
  InstructionEntry instructions_{session_, states_, line_, registers_};
  DataEntry data_{session_, states_, line_};
  Origins origins_{session_, states_, rows_};
  NumberEntry numbers_{session_, states_, line_, origins_, data_};
  StringLists strings_{session_, states_};
  LabelEntry labels_{session_, states_, line_, strings_};
  VariableBox variable_box_{session_};
  VariableEntry variables_{session_, states_, line_, strings_, variable_box_};
  CommentTool comments_{session_, states_};
  TableClicks table_clicks_{session_, states_, rows_, origins_, instructions_, data_};
  WriteModeSwitch write_mode_{session_, rows_};
  CancelAction cancel_{session_, states_, rows_};
  RowClipboard clipboard_{session_, states_, rows_, strings_};
  LabelPlacement placement_{session_, states_, strings_};
  FindLabelTool find_label_{session_, states_, strings_};
  ReplaceLabelTool replace_label_{session_, states_, strings_, placement_};
  VariableTools variable_tools_{session_, states_, variable_box_};
  RenumberDialog equivalents_{session_};
  AddressAssignment addresses_{session_, states_, rows_};
  WatchWindowDialog watch_window_{
      [this](const std::string& text) { session_.ShowInformation(text); }};
  SimulationStart simulation_{session_, watch_window_,
                              [this](bool report) { addresses_.Assign_Address(report); }};
  Assembler assembler_{session_, states_, addresses_, strings_, rescue_};
  PrintState printing_;
  PrintInfo print_info_{session_, printing_};
  PrintComment print_comment_{session_, states_, printing_};
  PrintRun print_run_{session_, printing_, addresses_};
  DataDialog data_dialog_{session_, rows_, origins_, addresses_};
  NewFileCommand new_file_{session_, states_, rows_, numbers_};
  ProjectFile project_{session_, states_, rows_, origins_, new_file_, rescue_};
  PortMenu ports_{session_};
  Download download_{session_, states_, ports_};
  Upload upload_{session_, states_, ports_};
  QuitCommand quit_{session_};
  std::array<Label, kProgramColumns> HeadLabel_{
      Label(&form(), "HeadLabel", "Label", kLabelColumn),
      Label(&form(), "HeadLabel", "Addr.", kAddressColumn),
      Label(&form(), "HeadLabel", "Mnemonic", kMnemonicColumn),
      Label(&form(), "HeadLabel", "Opcode", kOpcodeColumn),
      Label(&form(), "HeadLabel", "Comment", kCommentColumn)};
};

}  // namespace quilla

#endif  // QUILLA_PANEL_PROGRAMMING_PANEL_H_
