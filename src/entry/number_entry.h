// The number box: the address of an origin, and the number of RST.
#ifndef QUILLA_ENTRY_NUMBER_ENTRY_H_
#define QUILLA_ENTRY_NUMBER_ENTRY_H_

#include "entry/data_entry.h"
#include "platform/timer.h"
#include "program/digit_keys.h"
#include "program/entry_line.h"
#include "program/session.h"
#include "program/state_machine.h"
#include "symbols/origins.h"

namespace quilla {

class NumberEntry {
 public:
  NumberEntry(Session& session, StateMachine& states, EntryLine& line, Origins& origins,
              DataEntry& data);

  /// Takes the number on display for what the state waits for.
  void NumberAcceptButton_Click();
  /// Enters the first origin of a new file, as if its address had been typed and accepted.
  void EnterFirstOrigin();

 private:
  static constexpr const char* kNoAddress = "0000";
  static constexpr int kFocusDelayMs = 10;

  void NumberStatus(bool status);
  void StartupTimer_Timer();
  void NUM_Click(int index);
  void NUM_MouseMove(int index);

  Session& session_;
  StateMachine& states_;
  EntryLine& line_;
  Origins& origins_;
  DataEntry& data_;

  Box NumberBox_{&session_.ProgrammingPanel, "NumberBox"};
  Label DataTypeLabel_{&NumberBox_, "DataTypeLabel", "Number:"};
  Label NumberLabel_{&NumberBox_, "NumberLabel", kNoAddress};
  DigitKeys NUM_{&NumberBox_, "NUM", [this](int digit) { NUM_Click(digit); },
                 [this](int digit) { NUM_MouseMove(digit); }};
  Button NumberAcceptButton_{&NumberBox_, "NumberAcceptButton", "Accept"};
  // Out of sight: takes the keys while there is nothing to accept.
  Button NumberFocusButton_{&NumberBox_, "NumberFocusButton", "Command1"};
  Timer StartupTimer_{session_.outside.clock, "StartupTimer", kFocusDelayMs};
};

}  // namespace quilla

#endif  // QUILLA_ENTRY_NUMBER_ENTRY_H_
