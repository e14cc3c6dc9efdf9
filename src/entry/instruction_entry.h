// The instruction keys: each begins an instruction on the row under the cursor.
#ifndef QUILLA_ENTRY_INSTRUCTION_ENTRY_H_
#define QUILLA_ENTRY_INSTRUCTION_ENTRY_H_

#include <array>

#include "entry/register_entry.h"
#include "isa/instruction_set.h"
#include "program/entry_line.h"
#include "program/key_array.h"
#include "program/session.h"
#include "program/state_machine.h"

namespace quilla {

class InstructionEntry {
 public:
  InstructionEntry(Session& session, StateMachine& states, EntryLine& line,
                   RegisterEntry& registers);

  /// Begins the instruction of a key on the row under the cursor, whose cells are kept for the
  /// cancel action. Nothing unless the panel is ready for entry.
  void INST_Click(int index);
  /// Empties the hint above the instruction keys.
  void ClearInstructionHint();

 private:
  void InstructionStatus(bool status);
  void INST_MouseMove(int index);
  void Form_MouseMove();
  void SaveCells();

  Session& session_;
  StateMachine& states_;
  EntryLine& line_;
  RegisterEntry& registers_;

  Box InstructionBox_{&session_.ProgrammingPanel, "InstructionBox"};
  Label InstructionCaption_{&InstructionBox_, "InstructionCaption", "Instruction:"};
  std::array<Label, 2> InstructionLabel_{Label(&InstructionBox_, "InstructionLabel", {}, 0),
                                         Label(&InstructionBox_, "InstructionLabel", {}, 1)};
  KeyArray INST_{&InstructionBox_,
                 "INST",
                 kInstructionKeyCount,
                 [](int index) { return Inst(index).caption; },
                 [this](int index) { INST_Click(index); },
                 [this](int index) { INST_MouseMove(index); }};
};

}  // namespace quilla

#endif  // QUILLA_ENTRY_INSTRUCTION_ENTRY_H_
