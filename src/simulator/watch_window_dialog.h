// The watch window: the tables of the machine, the key that steps it, the keypad for the starting
// address, and the keys that set ports and interrupt lines. Each load starts the machine afresh.
#ifndef QUILLA_SIMULATOR_WATCH_WINDOW_DIALOG_H_
#define QUILLA_SIMULATOR_WATCH_WINDOW_DIALOG_H_

#include <array>
#include <functional>
#include <string>

#include "platform/button.h"
#include "platform/form.h"
#include "platform/text_list.h"
#include "program/digit_keys.h"
#include "simulator/machine.h"
#include "simulator/watch_tables.h"

namespace quilla {

class WatchWindowDialog {
 public:
  /// `show_information` shows a message box and comes back when it is answered.
  explicit WatchWindowDialog(std::function<void(const std::string&)> show_information);

  Form& form() { return form_; }
  WatchTables& tables() { return tables_; }

  /// Loads the window if it is not loaded. It is shown by others; closing it unloads it.
  void Load();

 private:
  static constexpr int kLines = 5;

  void Form_Load();
  void Form_Unload();
  void ExecuteButton_Click();
  void AcceptButton_Click();
  void NUM_Click(int index);
  void IButton_MouseDown(int index);
  void IButton_MouseUp(int index);
  void ForceButton_Click();

  /// Runs an operation of the machine; if it fails, `note` tells the user so.
  void Attempt(const std::function<void()>& operation, const char* note);
  Button& LineButton(int index) { return IButton[static_cast<std::size_t>(index - 1)]; }

  Form form_{"WatchWindowDialog"};
  WatchTables tables_{&form_};
  Machine machine_;
  bool loaded_ = false;

  Label RegisterCaption{&form_, "RegisterCaption", "Register Contents"};
  Label MemoryCaption{&form_, "MemoryCaption", "Memory Contents"};
  Label PortCaption{&form_, "PortCaption", "Port Data"};
  Label InterruptCaption{&form_, "InterruptCaption", "Interrupts"};
  Label InstructionCaption{&form_, "InstructionCaption", "Instructions"};

  // The keys of the interrupt lines, by row of their table, and the arrows from key to table.
  std::array<Button, kLines> IButton;
  std::array<Box, kLines> arrows_;

  Label PortAddrCaption{&form_, "PortAddrCaption", "Address"};
  ComboBox PortAddrList{&form_, "PortAddrList"};
  Label ValueCaption{&form_, "ValueCaption", "Value"};
  ComboBox ValueList{&form_, "ValueList"};
  Button ForceButton{&form_, "ForceButton", "&Force"};

  Box AddrBox{&form_, "AddrBox"};
  Label AddrCaption{&AddrBox, "AddrCaption", "Starting Addr.:"};
  Label AddrLbl{&AddrBox, "AddrLbl"};
  DigitKeys NUM;
  Button AcceptButton{&AddrBox, "AcceptButton", "&OK"};

  Button ExecuteButton{&form_, "ExecuteButton", "&Execute"};
  // Empty unless the last step or starting address failed.
  Label StepNoteLabel{&form_, "StepNoteLabel"};
};

}  // namespace quilla

#endif  // QUILLA_SIMULATOR_WATCH_WINDOW_DIALOG_H_
