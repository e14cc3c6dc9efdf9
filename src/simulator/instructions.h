// The instructions of the machine, a function for each family, and the table that finds the one of
// an opcode. A function reads and writes the tables in an order that shows wherever it fails.
#ifndef QUILLA_SIMULATOR_INSTRUCTIONS_H_
#define QUILLA_SIMULATOR_INSTRUCTIONS_H_

#include "simulator/step.h"

namespace quilla {

using Instruction = StepEnd (*)(Step&);

/// The instruction of an opcode from 0 to 255. The invalid ones do nothing, as NOP.
Instruction InstructionOf(int op);

namespace instruction {

// Data movement: texts are copied as they stand.
StepEnd Mov(Step& step);
StepEnd Mvi(Step& step);
StepEnd Lxi(Step& step);
StepEnd Stax(Step& step);
StepEnd Ldax(Step& step);
StepEnd Shld(Step& step);
StepEnd Lhld(Step& step);
StepEnd Sta(Step& step);
StepEnd Lda(Step& step);
StepEnd Xchg(Step& step);
StepEnd Sphl(Step& step);
StepEnd Inx(Step& step);
StepEnd Dcx(Step& step);

// Stack words.
StepEnd Push(Step& step);
StepEnd PushPsw(Step& step);
StepEnd Pop(Step& step);
StepEnd PopPsw(Step& step);
StepEnd Xthl(Step& step);

// Control transfers.
StepEnd Hlt(Step& step);
StepEnd Jmp(Step& step);
StepEnd Pchl(Step& step);
StepEnd JumpIf(Step& step);
StepEnd Call(Step& step);
StepEnd CallIf(Step& step);
StepEnd Ret(Step& step);
StepEnd RetIf(Step& step);
StepEnd Rst(Step& step);

// Arithmetic and logic. Those with an operand take a register or the byte behind the opcode.
StepEnd Add(Step& step);
StepEnd Sub(Step& step);
StepEnd Cmp(Step& step);
StepEnd Ana(Step& step);
StepEnd Xra(Step& step);
StepEnd Ora(Step& step);
StepEnd Inr(Step& step);
StepEnd Dcr(Step& step);
StepEnd Dad(Step& step);
StepEnd Daa(Step& step);
StepEnd Cma(Step& step);
StepEnd Stc(Step& step);
StepEnd Cmc(Step& step);
StepEnd RotateLeft(Step& step);
StepEnd RotateRight(Step& step);

// Interrupt lines and ports.
StepEnd Sim(Step& step);
StepEnd Rim(Step& step);
StepEnd EnableInterrupts(Step& step);
StepEnd In(Step& step);
StepEnd Out(Step& step);

}  // namespace instruction
}  // namespace quilla

#endif  // QUILLA_SIMULATOR_INSTRUCTIONS_H_
