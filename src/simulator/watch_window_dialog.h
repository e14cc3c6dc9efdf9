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
#include "program/vocabulary.h"
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
  static constexpr const char* kLowLevel = "0";

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
  Button& LineButton(int index) { return IButton_[static_cast<std::size_t>(index - 1)]; }

  Form form_{kWatchWindowDialog};
  WatchTables tables_{&form_};
  Machine machine_;
  bool loaded_ = false;

  Label RegisterCaption_{&form_, "RegisterCaption", "Register Contents"};
  Label MemoryCaption_{&form_, "MemoryCaption", "Memory Contents"};
  Label PortCaption_{&form_, "PortCaption", "Port Data"};
  Label InterruptCaption_{&form_, "InterruptCaption", "Interrupts"};
  Label InstructionCaption_{&form_, "InstructionCaption", "Instructions"};

  // The keys of the interrupt lines, by row of their table, and the arrows from key to table.
  std::array<Button, kLines> IButton_{Button(&form_, "IButton", kLowLevel, kRowTrap),
                                      Button(&form_, "IButton", kLowLevel, kRowRst75),
                                      Button(&form_, "IButton", kLowLevel, kRowRst65),
                                      Button(&form_, "IButton", kLowLevel, kRowRst55),
                                      Button(&form_, "IButton", kLowLevel, kRowIntr)};
  std::array<Box, kLines> arrows_{Box(&form_, "TRAP"), Box(&form_, "RST75"), Box(&form_, "RST65"),
                                  Box(&form_, "RST55"), Box(&form_, "INTR")};

  Label PortAddrCaption_{&form_, "PortAddrCaption", "Address"};
  ComboBox PortAddrList_{&form_, "PortAddrList"};
  Label ValueCaption_{&form_, "ValueCaption", "Value"};
  ComboBox ValueList_{&form_, "ValueList"};
  Button ForceButton_{&form_, "ForceButton", "&Force"};

  Box AddrBox_{&form_, "AddrBox"};
  Label AddrCaption_{&AddrBox_, "AddrCaption", "Starting Addr.:"};
  Label AddrLbl_{&AddrBox_, "AddrLbl"};
  DigitKeys NUM_{&AddrBox_, "NUM", [this](int digit) { NUM_Click(digit); }};
  Button AcceptButton_{&AddrBox_, "AcceptButton", "&OK"};

  Button ExecuteButton_{&form_, "ExecuteButton", "&Execute"};
  // Empty unless the last step or starting address failed.
  Label StepNoteLabel_{&form_, "StepNoteLabel"};
};

}  // namespace quilla

#endif  // QUILLA_SIMULATOR_WATCH_WINDOW_DIALOG_H_
