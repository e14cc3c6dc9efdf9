// Arithmetic, logic, rotates and flags. Results go to the tables unpadded; the refresh of the same
// step pads them.
#include "simulator/instructions.h"

namespace quilla::instruction {
namespace {

constexpr Number kByte = 0xFF;
constexpr Number kLowDigit = 0x0F;
constexpr Number kHighDigit = 0xF0;
constexpr Number kHighBit = 0x80;
constexpr int kFirstImmediate = 0xC0;
/// INR and DCR leave Carry alone.
constexpr unsigned kAllButCarry = kAllFlags & ~unsigned{kCarryFlag};

Number Accumulator(const Step& step) { return step.RegValue(kRowA); }

// The second operand: a register, or the byte behind the opcode. M is read from its copy.
Number Operand(const Step& step) {
  return step.Op < kFirstImmediate ? step.RegValue(step.Src()) : NumberOf(step.ByteOperand());
}

// The carry that goes in: none for the plain forms.
Number CarryIn(const Step& step) { return step.Variant() & step.tables.FlagValue(kRowCarry); }

void SetAccumulator(Step& step, Number value) { step.SetReg(kRowA, HexText(value)); }

void SetFlagIf(Step& step, bool condition, Flag flag) {
  if (condition) step.FlagBits |= flag;
}

StepEnd Logic(Step& step, Number result) {
  step.FlagMask = kAllFlags;
  step.Result = result;
  SetAccumulator(step, result);
  return StepEnd::kNormal;
}

StepEnd Rotate(Step& step, Number result, bool carry) {
  step.FlagMask = kCarryFlag;
  step.Result = result;
  SetFlagIf(step, carry, kCarryFlag);
  SetAccumulator(step, result);
  return StepEnd::kNormal;
}

// The bit that a rotate moves in: the one it moved out, or Carry for RAL and RAR.
Number BitIn(const Step& step, Number bit_out) {
  constexpr int kThroughCarry = 0x10;
  return (step.Op & kThroughCarry) != 0 ? step.tables.FlagValue(kRowCarry) : bit_out;
}

// Writes the result of INR and DCR: padded in memory, unpadded in a register.
StepEnd Count(Step& step, Number result, bool aux_carry) {
  step.FlagMask = kAllButCarry;
  step.Result = result;
  SetFlagIf(step, aux_carry, kAuxCarryFlag);
  step.SetDest(step.Dest() == kRowM ? PaddedHexText(result, kByteDigits) : HexText(result));
  return StepEnd::kNormal;
}

}  // namespace

StepEnd Add(Step& step) {
  const Number A = Accumulator(step);
  const Number V = Operand(step);
  step.FlagMask = kAllFlags;
  step.Result = A + V + CarryIn(step);
  SetAccumulator(step, step.Result & kByte);
  SetFlagIf(step, step.Result > kByte, kCarryFlag);
  SetFlagIf(step, (A & kLowDigit) + (V & kLowDigit) > kLowDigit, kAuxCarryFlag);
  return StepEnd::kNormal;
}

StepEnd Sub(Step& step) {
  const Number A = Accumulator(step);
  const Number T = Operand(step) + CarryIn(step);
  const Number N = kByte - (T & kByte) + 1;
  step.FlagMask = kAllFlags;
  step.Result = A + N;
  SetAccumulator(step, step.Result & kByte);
  SetFlagIf(step, A < T, kCarryFlag);
  SetFlagIf(step, (A & kLowDigit) < (T & kLowDigit), kAuxCarryFlag);
  return StepEnd::kNormal;
}

StepEnd Cmp(Step& step) {
  const Number A = Accumulator(step);
  const Number V = Operand(step);
  step.FlagMask = kAllFlags;
  step.Result = (A + kByte - V + 1) & kByte;
  SetFlagIf(step, A < V, kCarryFlag);
  SetFlagIf(step, (A & kLowDigit) < (V & kLowDigit), kAuxCarryFlag);
  return StepEnd::kNormal;
}

StepEnd Ana(Step& step) { return Logic(step, Accumulator(step) & Operand(step)); }

StepEnd Xra(Step& step) { return Logic(step, Accumulator(step) ^ Operand(step)); }

StepEnd Ora(Step& step) { return Logic(step, Accumulator(step) | Operand(step)); }

StepEnd Inr(Step& step) {
  const Number W = step.RegValue(step.Dest());
  return Count(step, (W + 1) & kByte, (W & kLowDigit) + 1 > kLowDigit);
}

StepEnd Dcr(Step& step) {
  const Number W = step.RegValue(step.Dest());
  return Count(step, (W - 1) & kByte, (W & kLowDigit) - 1 < 0);
}

StepEnd Dad(Step& step) {
  step.FlagMask = kCarryFlag;
  step.Result = step.RegValue(kRowHL) + step.RegValue(step.Pair());
  if (step.Result > kTopAddress) {
    step.FlagBits |= kCarryFlag;
    step.Result -= kAddressSpace;
  }
  step.SetPair(kRowHL, step.Result);
  return StepEnd::kNormal;
}

StepEnd Daa(Step& step) {
  constexpr Number kHighestLowDigit = 0x09;
  constexpr Number kHighestHighDigit = 0x90;
  constexpr Number kLowCorrection = 0x06;
  constexpr Number kHighCorrection = 0x60;
  step.FlagMask = kAllFlags;
  Number R = Accumulator(step);
  if ((R & kLowDigit) > kHighestLowDigit || step.RegText(kRowAuxCarry) == "1") {
    R += kLowCorrection;
    step.FlagBits |= kAuxCarryFlag;
  }
  const Number L = R & kLowDigit;
  Number U = R & kHighDigit;
  if (U > kHighestHighDigit || R > kByte) U += kHighCorrection;
  SetFlagIf(step, U > kHighDigit, kCarryFlag);
  step.Result = (U & kHighDigit) + L;
  SetAccumulator(step, step.Result);
  return StepEnd::kNormal;
}

StepEnd Cma(Step& step) {
  SetAccumulator(step, kByte - Accumulator(step));
  return StepEnd::kNormal;
}

StepEnd Stc(Step& step) {
  step.SetReg(kRowCarry, "1");
  return StepEnd::kNormal;
}

StepEnd Cmc(Step& step) {
  step.SetReg(kRowCarry, std::to_string(1 - step.tables.FlagValue(kRowCarry)));
  return StepEnd::kNormal;
}

StepEnd RotateLeft(Step& step) {
  const Number A = Accumulator(step);
  const Number B7 = (A & kHighBit) != 0 ? 1 : 0;
  return Rotate(step, ((A * 2) & kByte) + BitIn(step, B7), B7 != 0);
}

StepEnd RotateRight(Step& step) {
  const Number A = Accumulator(step);
  const Number B0 = A & 1;
  return Rotate(step, (A - B0) / 2 + BitIn(step, B0) * kHighBit, B0 != 0);
}

}  // namespace quilla::instruction
