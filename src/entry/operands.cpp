#include "entry/operands.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace quilla {
namespace {

/// By instruction class, in the order of the classes.
constexpr FirstOperand kFirstOperands[] = {
    /*kNoOperand*/ {PanelState::kReady, true},
    /*kByteData*/ {PanelState::kByteOperand, true},
    /*kRegister*/ {PanelState::kRegister, false},
    /*kLabel*/ {PanelState::kLabelOperand, true},
    /*kPair*/ {PanelState::kPair, false},
    /*kLxi*/ {PanelState::kLxiPair, false},
    /*kMov*/ {PanelState::kMovDestination, false},
    /*kStack*/ {PanelState::kStackPair, false},
    /*kRestart*/ {PanelState::kRestart, false},
    /*kIndirect*/ {PanelState::kIndirectPair, false},
    /*kMvi*/ {PanelState::kMviRegister, false},
};

constexpr unsigned Keys(std::initializer_list<int> keys) {
  unsigned bits = 0;
  for (const int key : keys) bits |= 1U << key;
  return bits;
}

constexpr unsigned kRegisters =
    Keys({reg::kB, reg::kC, reg::kD, reg::kE, reg::kH, reg::kL, reg::kM, reg::kA});
constexpr unsigned kPairsAndSP = Keys({reg::kB, reg::kD, reg::kH, reg::kSP});
constexpr unsigned kPairsAndPSW = Keys({reg::kB, reg::kD, reg::kH, reg::kPSW});
constexpr unsigned kIndirectPairs = Keys({reg::kB, reg::kD});

constexpr int kSource = 0;       // bits 0 to 2
constexpr int kDestination = 3;  // bits 3 to 5; bits 4 and 5 of a pair, whose code is even

constexpr RegisterOperand kRegisterOperands[] = {
    {PanelState::kRegister, kRegisters, kSource, "", PanelState::kReady},
    {PanelState::kPair, kPairsAndSP, kDestination, "", PanelState::kReady},
    {PanelState::kLxiPair, kPairsAndSP, kDestination, ",", PanelState::kLxiOperand},
    {PanelState::kMovDestination, kRegisters, kDestination, ",", PanelState::kMovSource},
    {PanelState::kMovSource, kRegisters, kSource, "", PanelState::kReady},
    {PanelState::kStackPair, kPairsAndPSW, kDestination, "", PanelState::kReady},
    {PanelState::kIndirectPair, kIndirectPairs, kDestination, "", PanelState::kReady},
    {PanelState::kMviRegister, kRegisters, kDestination, ",", PanelState::kMviOperand},
};

constexpr int kFourthPair = 6;  // the code of SP and PSW

}  // namespace

const FirstOperand& FirstOperandOf(InstructionClass instruction) {
  return kFirstOperands[static_cast<std::size_t>(instruction)];
}

const RegisterOperand* RegisterOperandOf(PanelState state) {
  const auto* const found =
      std::find_if(std::begin(kRegisterOperands), std::end(kRegisterOperands),
                   [state](const RegisterOperand& operand) { return operand.state == state; });
  return found != std::end(kRegisterOperands) ? found : nullptr;
}

int RegisterBits(const RegisterOperand& operand, int opcode, int key) {
  const int code = key <= reg::kA ? key : kFourthPair;
  const bool steps = opcode == opcode::kInrBase || opcode == opcode::kDcrBase;
  return code << (steps ? kDestination : operand.shift);
}

}  // namespace quilla
