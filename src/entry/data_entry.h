// Data mode: literal bytes, one to a row, and the switch between the two entry modes.
#ifndef QUILLA_ENTRY_DATA_ENTRY_H_
#define QUILLA_ENTRY_DATA_ENTRY_H_

#include "program/digit_keys.h"
#include "program/entry_line.h"
#include "program/session.h"
#include "program/state_machine.h"

namespace quilla {

class DataEntry {
 public:
  DataEntry(Session& session, StateMachine& states, EntryLine& line);

  /// Switches between program mode and data mode.
  void EntryMode_Click();
  Button& AcceptButton() { return DataAcceptButton_; }

 private:
  static constexpr const char* kNoByte = "00";

  void DataStatus(bool status);
  void DataNum_Click(int index);
  void DataAcceptButton_Click();

  Session& session_;
  StateMachine& states_;
  EntryLine& line_;

  Box DataBox_{&session_.ProgrammingPanel, "DataBox"};
  Label DataCaption_{&DataBox_, "DataCaption", "Data:"};
  Label DataLabel_{&DataBox_, "DataLabel", kNoByte};
  DigitKeys DataNum_{&DataBox_, "DataNum", [this](int digit) { DataNum_Click(digit); }};
  Button DataAcceptButton_{&DataBox_, "DataAcceptButton", "Accept"};
};

}  // namespace quilla

#endif  // QUILLA_ENTRY_DATA_ENTRY_H_
