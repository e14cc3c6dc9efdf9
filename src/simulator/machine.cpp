#include "simulator/machine.h"

#include <array>
#include <bit>
#include <cstdint>
#include <utility>

#include "isa/instruction_set.h"
#include "platform/failure.h"
#include "program/opcode_cell.h"
#include "program/vocabulary.h"
#include "simulator/instructions.h"
#include "simulator/step.h"

namespace quilla {
namespace {

constexpr const char* kInvalidInstruction =
    "This is an invalid instruction. However, the processor will execute this instruction as a NOP "
    "instruction.";
constexpr const char* kProgramHalted = "Program execution halted.";

constexpr std::array kPairRows = {kRowBC, kRowDE, kRowHL};
constexpr std::array kByteRows = {kRowA, kRowB, kRowC, kRowD, kRowE, kRowH, kRowL, kRowM};
constexpr std::array kWordRows = {kRowBC, kRowDE, kRowHL, kRowSP, kRowPC};

std::string_view MnemonicOf(int op) {
  if (op < 0 || op >= kOpcodeCount) throw Failure(ErrorNumber::kOutsideList);
  return MnemonicsLUTList(op);
}

}  // namespace

Machine::Machine(WatchTables& tables, std::function<void(const std::string&)> show_information)
    : tables_(tables), show_information_(std::move(show_information)) {}

void Machine::Reset() {
  PCValue = 0;
  InstLength = 0;
  Halted = false;
}

void Machine::Execute() {
  if (Halted) return;
  Step step{*this, tables_, OpcodeOf(tables_.OpcodeText())};
  switch (InstructionOf(step.Op)(step)) {
    case StepEnd::kHalt:
      return;
    case StepEnd::kTransfer:
      break;
    case StepEnd::kNormal:
      WriteFlags(step);
      UpdateRegisterTable();
      PCValue += InstLength;
      if (PCValue > kTopAddress) PCValue -= kAddressSpace;
      break;
  }
  Disassemble(PCValue);
}

void Machine::StartAt(const std::string& address) {
  PCValue = NumberOf(address);
  Disassemble(PCValue);
}

void Machine::Halt() {
  show_information_(kProgramHalted);
  Halted = true;
}

void Machine::WriteFlags(const Step& step) {
  constexpr Number kByte = 0xFF;
  constexpr Number kSignBit = 0x80;
  if ((step.FlagMask & kZeroFlag) != 0) WriteFlag(kRowZero, (step.Result & kByte) == 0);
  if ((step.FlagMask & kSignFlag) != 0) WriteFlag(kRowSign, (step.Result & kSignBit) != 0);
  if ((step.FlagMask & kParityFlag) != 0) {
    WriteFlag(kRowParity, std::popcount(static_cast<std::uint8_t>(step.Result)) % 2 == 0);
  }
  if ((step.FlagMask & kCarryFlag) != 0) WriteFlag(kRowCarry, (step.FlagBits & kCarryFlag) != 0);
  if ((step.FlagMask & kAuxCarryFlag) != 0) {
    WriteFlag(kRowAuxCarry, (step.FlagBits & kAuxCarryFlag) != 0);
  }
}

void Machine::WriteFlag(int row, bool set) { tables_.SetReg(row, set ? "1" : "0"); }

void Machine::UpdateRegisterTable() {
  for (const int pair : kPairRows) {
    tables_.SetReg(pair,
                   tables_.RegText(pair - kHighAbovePair) + tables_.RegText(pair - kLowAbovePair));
  }
  tables_.RegisterTable.SetTextMatrix(kRowM, kTitleColumn, "M(" + tables_.RegText(kRowHL) + ")");

  const Number address = tables_.RegValue(kRowHL);
  const std::string& cell = tables_.MemText(address);
  if (cell.size() == 1) tables_.SetMem(address, "0" + cell);
  tables_.SetReg(kRowM, cell);

  for (const int row : kByteRows) {
    if (tables_.RegText(row).size() == 1) tables_.SetReg(row, "0" + tables_.RegText(row));
  }
  for (const int row : kWordRows) {
    if (IsShortWord(tables_.RegText(row))) tables_.SetReg(row, PadWord(tables_.RegText(row)));
  }
}

void Machine::Disassemble(Number Address) {
  constexpr std::string_view kBlanks = "   ";
  constexpr std::string_view kBeforeOperand = "  ";
  const auto show = [this](int column, std::string_view text) {
    tables_.InstructionTable.SetTextMatrix(kInstructionRow, column, text);
  };
  show(kAddressColumn, AddressText(Address));
  tables_.SetReg(kRowPC, AddressText(Address));

  const int op = static_cast<int>(NumberOf(tables_.MemText(Address)));
  if (IsInvalidOpcode(op)) show_information_(kInvalidInstruction);

  std::string mnemonic(MnemonicOf(op));
  std::string bytes = tables_.MemText(Address);
  const int length = InstructionLength(op);
  if (length > 1) {
    mnemonic.append(kBeforeOperand);
    if (length > 2) mnemonic.append(tables_.MemText(Address + 2));
    mnemonic.append(tables_.MemText(Address + 1)).append("h");
    for (int i = 1; i < length; ++i) bytes.append(kBlanks).append(tables_.MemText(Address + i));
  }
  show(kMnemonicColumn, mnemonic);
  show(kOpcodeColumn, bytes);
  InstLength = length;
}

}  // namespace quilla
