// The machine: an 8085 that runs one instruction at a time on the texts of the watch tables. Beside
// them it keeps three values: where it stands, how long that instruction is, and whether it halted.
//
// It is not the real chip: no interrupt is taken, no time is counted, and where the byte orders of
// the stack words, a return address or a flag are others than those of the chip, they are meant so.
#ifndef QUILLA_SIMULATOR_MACHINE_H_
#define QUILLA_SIMULATOR_MACHINE_H_

#include <functional>
#include <string>

#include "simulator/watch_tables.h"

namespace quilla {

struct Step;

class Machine {
 public:
  /// `show_information` shows a message box and comes back when it is answered.
  Machine(WatchTables& tables, std::function<void(const std::string&)> show_information);

  /// Starts afresh; the tables are another matter.
  void Reset();

  /// Runs the instruction on view and shows the next one; a halted machine does nothing. A step
  /// that meets a text that is no number, or a cell outside a table, fails and ends where it
  /// stands: what it has written by then stays.
  void Execute();
  /// Goes to an address, given in hexadecimal digits, and shows the instruction there. Fails as
  /// Execute does.
  void StartAt(const std::string& address);
  /// Decodes the instruction at `Address` into `InstructionTable`, the row of the program counter
  /// and `InstLength`. Fails where its bytes lie beyond the memory.
  void Disassemble(Number Address);
  /// Writes the derived rows of `RegisterTable`, the pairs and M, and pads the texts that are
  /// short. The pairs are joined before their halves are padded, so a pair whose half has just
  /// become short comes right at the next refresh.
  void UpdateRegisterTable();

  /// Tells the user that the program has halted, and halts.
  void Halt();

  Number PCValue = 0;
  int InstLength = 0;
  bool Halted = false;

 private:
  void WriteFlags(const Step& step);
  void WriteFlag(int row, bool set);

  WatchTables& tables_;
  std::function<void(const std::string&)> show_information_;
};

}  // namespace quilla

#endif  // QUILLA_SIMULATOR_MACHINE_H_
