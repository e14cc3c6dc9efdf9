// What has to be entered after an instruction key: the operands of each class of instructions, and
// what the register keys do in each state that waits for a register.
#ifndef QUILLA_ENTRY_OPERANDS_H_
#define QUILLA_ENTRY_OPERANDS_H_

#include "isa/instruction_set.h"
#include "program/panel_state.h"

namespace quilla {

/// The first operand of a class of instructions.
struct FirstOperand {
  PanelState state;         // where it is entered; ready, where there is none
  bool has_opcode_at_once;  // whether the opcode is complete but for its operand bytes
};

const FirstOperand& FirstOperandOf(InstructionClass instruction);

/// A register operand, entered by one of the register keys.
struct RegisterOperand {
  PanelState state;    // where it is entered
  unsigned keys;       // the keys on offer, a bit for each index
  int shift;           // where the register's code stands in the opcode, in bits from the right
  const char* behind;  // what stands behind the register in the mnemonic
  PanelState next;     // ready, where the instruction is complete

  bool Offers(int key) const { return (keys >> key & 1U) != 0; }
};

/// The register operand of a state; null in a state that waits for none.
const RegisterOperand* RegisterOperandOf(PanelState state);

/// What a register key adds to an opcode. INR and DCR have their register where a destination
/// stands, other than the instructions that they share their state with.
int RegisterBits(const RegisterOperand& operand, int opcode, int key);

}  // namespace quilla

#endif  // QUILLA_ENTRY_OPERANDS_H_
