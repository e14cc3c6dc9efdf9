// PUSH, POP and XTHL keep the high register at the lower address. Calls and returns do not: a word
// that is pushed and then returned to has its bytes exchanged.
#include "simulator/instructions.h"

namespace quilla::instruction {
namespace {

// The flag byte of the processor status word.
constexpr Number kPswCarry = 0x01;
constexpr Number kPswAlwaysSet = 0x02;
constexpr Number kPswParity = 0x04;
constexpr Number kPswAuxCarry = 0x10;
constexpr Number kPswZero = 0x40;
constexpr Number kPswSign = 0x80;

std::string ByteText(Number n) {
  constexpr Number kHighestDigit = 0xF;
  std::string text = HexText(n);
  if (n <= kHighestDigit) text.insert(text.begin(), '0');
  return text;
}

Number Wrapped(Number row) { return row > kTopAddress ? row - kAddressSpace : row; }
Number WrappedBelow(Number row) { return row < 0 ? row + kAddressSpace : row; }

// Puts two bytes on the stack. A stack pointer of 0 has both in the same cell, one of 1 reaches the
// heading of the table.
void PushBytes(Step& step, Number First, Number Second) {
  const Number S = step.RegValue(kRowSP);
  const Number r = WrappedBelow(S - 1);
  const Number q = S == 0 ? Number{kTopAddress} : S;
  step.tables.SetMemRow(r, ByteText(First));
  step.tables.SetMemRow(q, ByteText(Second));
  step.SetReg(kRowSP, AddressText(WrappedBelow(r - 1)));
}

// The two rows at the top of the stack. With the stack pointer at its end one is the heading.
struct StackTop {
  explicit StackTop(const Step& step)
      : S(step.RegValue(kRowSP)),
        r(Wrapped(S + 1)),
        q(Wrapped(S + 2)),
        v(NumberOf(step.tables.MemRowText(r))),
        w(NumberOf(step.tables.MemRowText(q))) {}

  void Drop(Step& step) const { step.SetReg(kRowSP, AddressText(Wrapped(S + 2))); }

  Number S;
  Number r;
  Number q;
  Number v;
  Number w;
};

}  // namespace

StepEnd Push(Step& step) {
  PushBytes(step, step.RegValue(step.Pair() - kHighAbovePair),
            step.RegValue(step.Pair() - kLowAbovePair));
  return StepEnd::kNormal;
}

StepEnd PushPsw(Step& step) {
  const WatchTables& tables = step.tables;
  // The accumulator's text counts as a decimal number here, so that one with a letter fails.
  const Number First = DecimalValue(tables.RegText(kRowA));
  const Number Second =
      tables.FlagValue(kRowCarry) * kPswCarry + kPswAlwaysSet +
      tables.FlagValue(kRowParity) * kPswParity + tables.FlagValue(kRowAuxCarry) * kPswAuxCarry +
      tables.FlagValue(kRowZero) * kPswZero + tables.FlagValue(kRowSign) * kPswSign;
  PushBytes(step, First, Second);
  return StepEnd::kNormal;
}

StepEnd Pop(Step& step) {
  const StackTop top(step);
  step.SetReg(step.Pair() - kLowAbovePair, HexText(top.w));
  step.SetReg(step.Pair() - kHighAbovePair, HexText(top.v));
  top.Drop(step);
  return StepEnd::kNormal;
}

StepEnd PopPsw(Step& step) {
  const StackTop top(step);
  const auto take = [&](int row, Number bit) { step.SetReg(row, (top.w & bit) != 0 ? "1" : "0"); };
  step.SetReg(kRowA, HexText(top.v));
  take(kRowCarry, kPswCarry);
  take(kRowParity, kPswParity);
  take(kRowAuxCarry, kPswAuxCarry);
  take(kRowZero, kPswZero);
  take(kRowSign, kPswSign);
  top.Drop(step);
  return StepEnd::kNormal;
}

StepEnd Xthl(Step& step) {
  const StackTop top(step);
  step.tables.SetMemRow(top.r, step.RegText(kRowH));
  step.tables.SetMemRow(top.q, step.RegText(kRowL));
  step.SetReg(kRowH, HexText(top.v));
  step.SetReg(kRowL, HexText(top.w));
  return StepEnd::kNormal;
}

}  // namespace quilla::instruction
