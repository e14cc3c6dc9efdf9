// The interrupt lines and the ports are displays that the program writes to: no interrupt is taken.
#include "program/vocabulary.h"
#include "simulator/instructions.h"

namespace quilla::instruction {
namespace {

Number PortOperand(const Step& step) { return NumberOf(step.ByteOperand()); }

}  // namespace

StepEnd Sim(Step& step) {
  constexpr Number kResetRst75 = 0x10;
  constexpr Number kSetMasks = 0x08;
  constexpr int kMasks = 3;
  const Number A = step.RegValue(kRowA);
  Grid& lines = step.tables.InterruptTable;
  if ((A & kResetRst75) != 0) lines.SetTextMatrix(kRowRst75, kValueColumn, "0");
  if ((A & kSetMasks) == 0) return StepEnd::kNormal;
  for (int n = 0; n < kMasks; ++n) {
    const bool masked = (A >> n & 1) != 0;
    lines.PaintBack(kRowRst55 - n, kTitleColumn, masked ? kMaskedColor : kEnabledColor);
  }
  return StepEnd::kNormal;
}

// The masks and the pending lines could be read from the table, but the accumulator takes nothing
// of them, so that the instruction shows no effect.
StepEnd Rim(Step& /*step*/) { return StepEnd::kNormal; }

StepEnd EnableInterrupts(Step& step) {
  step.tables.InterruptTable.PaintBack(kRowIntr, kTitleColumn,
                                       step.Variant() != 0 ? kEnabledColor : kMaskedColor);
  return StepEnd::kNormal;
}

StepEnd In(Step& step) {
  step.SetReg(kRowA, step.tables.PortText(PortOperand(step)));
  return StepEnd::kNormal;
}

StepEnd Out(Step& step) {
  step.tables.SetPort(PortOperand(step), step.RegText(kRowA));
  return StepEnd::kNormal;
}

}  // namespace quilla::instruction
