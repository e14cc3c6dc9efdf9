#include "simulator/instructions.h"

namespace quilla::instruction {

StepEnd Mov(Step& step) {
  step.SetDest(step.RegText(step.Src()));
  return StepEnd::kNormal;
}

StepEnd Mvi(Step& step) {
  step.SetDest(step.ByteOperand());
  return StepEnd::kNormal;
}

StepEnd Lxi(Step& step) {
  const int pair = step.Pair();
  if (pair == kRowSP) {
    step.SetReg(kRowSP, AddressIn(step.tables.OpcodeText()));
  } else {
    step.SetReg(pair - kLowAbovePair, step.ByteOperand());
    step.SetReg(pair - kHighAbovePair, step.HighByteOperand());
  }
  return StepEnd::kNormal;
}

StepEnd Stax(Step& step) {
  step.tables.SetMem(step.RegValue(step.Pair()), step.RegText(kRowA));
  return StepEnd::kNormal;
}

StepEnd Ldax(Step& step) {
  step.SetReg(kRowA, step.tables.MemText(step.RegValue(step.Pair())));
  return StepEnd::kNormal;
}

StepEnd Shld(Step& step) {
  const Number a = step.WordOperand();
  step.tables.SetMem(a, step.RegText(kRowL));
  step.tables.SetMem(a + 1, step.RegText(kRowH));
  return StepEnd::kNormal;
}

StepEnd Lhld(Step& step) {
  const Number a = step.WordOperand();
  step.SetReg(kRowL, step.tables.MemText(a));
  step.SetReg(kRowH, step.tables.MemText(a + 1));
  return StepEnd::kNormal;
}

StepEnd Sta(Step& step) {
  step.tables.SetMem(step.WordOperand(), step.RegText(kRowA));
  return StepEnd::kNormal;
}

StepEnd Lda(Step& step) {
  step.SetReg(kRowA, step.tables.MemText(step.WordOperand()));
  return StepEnd::kNormal;
}

StepEnd Xchg(Step& step) {
  const Number v = step.RegValue(kRowH);
  const Number w = step.RegValue(kRowL);
  step.SetReg(kRowH, step.RegText(kRowD));
  step.SetReg(kRowL, step.RegText(kRowE));
  step.SetReg(kRowD, HexText(v));
  step.SetReg(kRowE, HexText(w));
  return StepEnd::kNormal;
}

StepEnd Sphl(Step& step) {
  step.SetReg(kRowSP, step.RegText(kRowHL));
  return StepEnd::kNormal;
}

StepEnd Inx(Step& step) {
  step.SetPair(step.Pair(), (step.RegValue(step.Pair()) + 1) & kTopAddress);
  return StepEnd::kNormal;
}

StepEnd Dcx(Step& step) {
  Number v = step.RegValue(step.Pair()) - 1;
  if (v < 0) v += kAddressSpace;
  step.SetPair(step.Pair(), v);
  return StepEnd::kNormal;
}

}  // namespace quilla::instruction
