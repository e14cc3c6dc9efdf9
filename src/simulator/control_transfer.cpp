// Jumps, calls, returns and restarts, which keep the high byte of a return address at the higher
// address. What they write stays as short as it is until the next refresh.
#include "simulator/instructions.h"

namespace quilla::instruction {
namespace {

// The flags that conditions test, by the two bits of the opcode that name them.
constexpr std::array<int, 4> kConditionRows = {kRowZero, kRowCarry, kRowParity, kRowSign};

constexpr Number kReturnDistance = 3;
constexpr int kRestartBits = 0x38;

bool Cond(const Step& step) {
  const int row = kConditionRows[static_cast<std::size_t>(step.Op >> 4 & 3)];
  return step.tables.FlagValue(row) == step.Variant();
}

// The wrap of calls and returns: it comes out right at 10000h only.
Number Mirrored(Number address) {
  return address > kTopAddress || address < 0 ? kAddressSpace - address : address;
}

StepEnd JumpTo(Step& step, Number low, Number high) {
  const std::string target = step.tables.MemText(high) + step.tables.MemText(low);
  step.machine.PCValue = NumberOf(target);
  return StepEnd::kTransfer;
}

// Puts the return address on the stack. A stack pointer below 2 ends outside the memory.
void PushReturn(Step& step) {
  const std::string ReturnText = PadWord(HexText(Mirrored(step.machine.PCValue + kReturnDistance)));
  const Number S = step.RegValue(kRowSP);
  step.tables.SetMem(Mirrored(S - 1), ReturnText.substr(0, 2));
  step.tables.SetMem(Mirrored(S - 2), ReturnText.substr(2, 2));
  step.SetReg(kRowSP, HexText(Mirrored(S - 2)));
}

}  // namespace

StepEnd Hlt(Step& step) {
  step.machine.Halt();
  return StepEnd::kHalt;
}

StepEnd Jmp(Step& step) {
  const auto wrapped = [](Number address) {
    return address > kTopAddress ? address - kAddressSpace : address;
  };
  return JumpTo(step, wrapped(step.machine.PCValue + 1), wrapped(step.machine.PCValue + 2));
}

StepEnd Pchl(Step& step) {
  step.machine.PCValue = step.RegValue(kRowHL);
  return StepEnd::kTransfer;
}

StepEnd JumpIf(Step& step) {
  if (!Cond(step)) return StepEnd::kNormal;
  // Unlike those of JMP, the addresses of the operand do not wrap.
  return JumpTo(step, step.machine.PCValue + 1, step.machine.PCValue + 2);
}

StepEnd Call(Step& step) {
  PushReturn(step);
  return Jmp(step);
}

StepEnd CallIf(Step& step) { return Cond(step) ? Call(step) : StepEnd::kNormal; }

StepEnd Ret(Step& step) {
  const Number v = step.RegValue(kRowSP);
  const Number w = Mirrored(v + 1);
  step.SetReg(kRowPC, step.tables.MemText(w) + step.tables.MemText(v));
  step.machine.PCValue = step.RegValue(kRowPC);
  step.SetReg(kRowSP, HexText(Mirrored(w + 1)));
  return StepEnd::kTransfer;
}

StepEnd RetIf(Step& step) { return Cond(step) ? Ret(step) : StepEnd::kNormal; }

StepEnd Rst(Step& step) {
  // The return address is that of a call of three bytes, though a restart has one.
  PushReturn(step);
  step.machine.PCValue = step.Op & kRestartBits;
  return StepEnd::kTransfer;
}

}  // namespace quilla::instruction
