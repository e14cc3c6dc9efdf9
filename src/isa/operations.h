// The 80 operations of the 8085, one row each, in the order of their keys. All texts and properties
// of opcodes and keys are made from these rows when the program is compiled.

#ifndef QUILLA_ISA_OPERATIONS_H_
#define QUILLA_ISA_OPERATIONS_H_

#include <array>
#include <string_view>

#include "isa/instruction_set.h"

namespace quilla::isa {

// A letter in braces stands for what operand bits of the opcode name:
//   {s}  source register, bits 0 to 2
//   {d}  destination register, bits 3 to 5
//   {p}  register pair or stack pointer, bits 4 and 5
//   {w}  register pair or processor status word, bits 4 and 5
//   {c}  condition, bits 3 to 5
//   {n}  restart number, bits 3 to 5
//   {a}  address of that restart, bits 3 to 5
struct Operation {
  std::string_view mnemonic;
  int base_opcode;
  InstructionClass operation_class;
  std::string_view operands;        // In words, for the hint.
  std::string_view comment_before;  // The comment up to the label or data, or all of it.
  std::string_view comment_after = {};
};

inline constexpr std::string_view kRegisterOrMemory = "Register/Memory";
inline constexpr std::string_view kPairOrStackPointer = "Register Pair/Stack Pointer";
inline constexpr std::string_view kPairOrStatusWord = "Register Pair/PSW";
inline constexpr std::string_view kRegisterPair = "Register Pair";
inline constexpr std::string_view kMemoryAddress = "Memory Address";
inline constexpr std::string_view kPortAddress = "Port Address";
inline constexpr std::string_view kEightBits = "8-Bit Data";
inline constexpr std::string_view kLabelName = "Label";

inline constexpr std::string_view kJumpOn = "Jump on {c}, to address pointed by '";
inline constexpr std::string_view kCallOn = "Call on {c}, sub-routine pointed by '";
inline constexpr std::string_view kReturnOn = "Return on {c}.";

inline constexpr std::string_view kEnd = "'.";
inline constexpr std::string_view kToAccumulator = "' to content of Accumulator.";
inline constexpr std::string_view kFromAccumulator = "' from content of Accumulator.";
inline constexpr std::string_view kWithAccumulator = "' with content of Accumulator.";

using enum InstructionClass;

inline constexpr std::array<Operation, kInstructionKeyCount> kOperations = {{
    // Transfer.
    {"MOV  {d}, {s}", 0x40, kMov, "Register/Memory, Register/Memory",
     "Move content of {s} into {d}."},
    {"MVI  {d},", 0x06, kMvi, "Register/Memory, 8-Bit Data", "Move the equivalent of '",
     "' into {d}."},
    {"LXI  {p},", 0x01, kLxi, "Register Pair/Stack Pointer, 16-Bit Data",
     "Load the equivalent of '", "' into {p}."},
    {"LDAX  {p}", 0x0A, kIndirect, kRegisterPair,
     "Load Accumulator with content in address pointed by {p}."},
    {"LHLD ", 0x2A, kLabel, kMemoryAddress,
     "Load HL-register pair with content from address pointed by '", kEnd},
    {"LDA", 0x3A, kLabel, kMemoryAddress, "Load Accumulator with content from address pointed by '",
     kEnd},
    {"STA ", 0x32, kLabel, kMemoryAddress, "Store content of Accumulator in address pointed by '",
     kEnd},
    {"STAX  {p}", 0x02, kIndirect, kRegisterPair,
     "Store content of Accumulator in address pointed by {p}."},
    {"SHLD ", 0x22, kLabel, kMemoryAddress,
     "Store content of HL-register pair in address pointed by '", kEnd},
    {"XCHG", 0xEB, kNoOperand, "", "Exchange content of DE & HL-register pairs."},

    // Arithmetic.
    {"ADD  {s}", 0x80, kRegister, kRegisterOrMemory,
     "Add content of {s} to content of Accumulator."},
    {"ADC  {s}", 0x88, kRegister, kRegisterOrMemory,
     "Add with carry, content of {s} to content of Accumulator."},
    {"SUB  {s}", 0x90, kRegister, kRegisterOrMemory,
     "Subtract content of {s} from content of Accumulator."},
    {"SBB  {s}", 0x98, kRegister, kRegisterOrMemory,
     "Subtract with borrow, content of {s} from content of Accumulator."},
    {"DAD  {p}", 0x09, kPair, kPairOrStackPointer,
     "Add content of {p} to content of HL-register pair."},
    {"ADI", 0xC6, kByteData, kEightBits, "Add the equivalent of '", kToAccumulator},
    {"ACI", 0xCE, kByteData, kEightBits, "Add with carry, the equivalent of '", kToAccumulator},
    {"SUI", 0xD6, kByteData, kEightBits, "Subtract the equivalent of '", kFromAccumulator},
    {"SBI", 0xDE, kByteData, kEightBits, "Subtract with borrow, the equivalent of '",
     kFromAccumulator},
    {"DAA", 0x27, kNoOperand, "", "Decimal adjust Accumulator."},
    {"DCR  {d}", 0x05, kRegister, kRegisterOrMemory, "Decrement content of {d}."},
    {"DCX  {p}", 0x0B, kPair, kPairOrStackPointer, "Decrement content of {p}."},
    {"INR  {d}", 0x04, kRegister, kRegisterOrMemory, "Increment content of {d}."},
    {"INX  {p}", 0x03, kPair, kPairOrStackPointer, "Increment content of {p}."},

    // Logic.
    {"ANA  {s}", 0xA0, kRegister, kRegisterOrMemory,
     "AND content of {s} with content of Accumulator."},
    {"XRA  {s}", 0xA8, kRegister, kRegisterOrMemory,
     "XOR content of {s} with content of Accumulator."},
    {"ORA  {s}", 0xB0, kRegister, kRegisterOrMemory,
     "OR content of {s} with content of Accumulator."},
    {"ANI", 0xE6, kByteData, kEightBits, "AND the equivalent of '", kWithAccumulator},
    {"XRI", 0xEE, kByteData, kEightBits, "XOR the equivalent of '", kWithAccumulator},
    {"ORI", 0xF6, kByteData, kEightBits, "OR the equivalent of '", kWithAccumulator},
    {"CMA", 0x2F, kNoOperand, "", "Complement content of Accumulator."},
    {"RLC", 0x07, kNoOperand, "", "Rotate Accumulator content left."},
    {"RRC", 0x0F, kNoOperand, "", "Rotate Accumulator content right."},
    {"RAL", 0x17, kNoOperand, "", "Rotate Accumulator content left through carry flag."},
    {"RAR", 0x1F, kNoOperand, "", "Rotate Accumulator content right through carry flag."},
    {"CMP  {s}", 0xB8, kRegister, kRegisterOrMemory,
     "Compare content of {s} with content of Accumulator."},
    {"CPI", 0xFE, kByteData, kEightBits, "Compare the equivalent of '", kWithAccumulator},

    // Jumps.
    {"JMP", 0xC3, kLabel, kLabelName, "Jump to address pointed by '", kEnd},
    {"JPO", 0xE2, kLabel, kLabelName, kJumpOn, kEnd},
    {"JNZ", 0xC2, kLabel, kLabelName, kJumpOn, kEnd},
    {"JC", 0xDA, kLabel, kLabelName, kJumpOn, kEnd},
    {"JP", 0xF2, kLabel, kLabelName, "Jump on {c}, to address pointd by '", kEnd},  // Sic.
    {"PCHL", 0xE9, kNoOperand, "", "Load program counter with content of HL-register pair."},
    {"JPE", 0xEA, kLabel, kLabelName, kJumpOn, kEnd},
    {"JZ", 0xCA, kLabel, kLabelName, kJumpOn, kEnd},
    {"JNC", 0xD2, kLabel, kLabelName, kJumpOn, kEnd},
    {"JM", 0xFA, kLabel, kLabelName, kJumpOn, kEnd},

    // Ports.
    {"IN", 0xDB, kByteData, kPortAddress, "Receive content from port address pointed by '",
     "' and store in Accumulator."},
    {"OUT", 0xD3, kByteData, kPortAddress,
     "Send content of Accumulator to port address pointed by '", kEnd},

    // Calls and returns.
    {"CALL", 0xCD, kLabel, kLabelName, "Call sub-routine pointed by '", kEnd},
    {"CPO", 0xE4, kLabel, kLabelName, kCallOn, kEnd},
    {"CPE", 0xEC, kLabel, kLabelName, kCallOn, kEnd},
    {"CNZ", 0xC4, kLabel, kLabelName, kCallOn, kEnd},
    {"CZ", 0xCC, kLabel, kLabelName, kCallOn, kEnd},
    {"CC", 0xDC, kLabel, kLabelName, kCallOn, kEnd},
    {"CNC", 0xD4, kLabel, kLabelName, kCallOn, kEnd},
    {"CP", 0xF4, kLabel, kLabelName, kCallOn, kEnd},
    {"CM", 0xFC, kLabel, kLabelName, kCallOn, kEnd},
    {"RET", 0xC9, kNoOperand, "", "Return."},
    {"RPO", 0xE0, kNoOperand, "", kReturnOn},
    {"RPE", 0xE8, kNoOperand, "", kReturnOn},
    {"RNZ", 0xC0, kNoOperand, "", kReturnOn},
    {"RZ", 0xC8, kNoOperand, "", kReturnOn},
    {"RC", 0xD8, kNoOperand, "", kReturnOn},
    {"RNC ", 0xD0, kNoOperand, "", kReturnOn},
    {"RP", 0xF0, kNoOperand, "", kReturnOn},
    {"RM", 0xF8, kNoOperand, "", kReturnOn},
    {"RST {n}", 0xC7, kRestart, "Number", "Restart#{n} (Call sub-routine at address {a}H)."},

    // Stack.
    {"PUSH {w}", 0xC5, kStack, kPairOrStatusWord, "Store content of {w} in top of stack."},
    {"POP {w}", 0xC1, kStack, kPairOrStatusWord, "Load {w} with content from top of stack."},
    {"XTHL ", 0xE3, kNoOperand, "", "Exchange content of HL-register pair with top of stack."},
    {"SPHL", 0xF9, kNoOperand, "", "Load stack pointer with content of HL-register pair."},

    // Control. RIM reads the interrupt mask, whatever its comment says.
    {"DI", 0xF3, kNoOperand, "", "Disable interrupts."},
    {"EI", 0xFB, kNoOperand, "", "Enable interrupts."},
    {"RIM", 0x20, kNoOperand, "", "Reset interrupt mask."},
    {"SIM", 0x30, kNoOperand, "", "Set interrupt mask."},
    {"STC", 0x37, kNoOperand, "", "Set carry flag."},
    {"CMC", 0x3F, kNoOperand, "", "Complement carry flag."},
    {"NOP", 0x00, kNoOperand, "", "No Operation."},
    {"HLT", 0x76, kNoOperand, "", "Halt program execution."},
}};

// The first word of a mnemonic.
constexpr std::string_view BareName(std::string_view mnemonic) {
  return mnemonic.substr(0, mnemonic.find(' '));
}

}  // namespace quilla::isa

#endif  // QUILLA_ISA_OPERATIONS_H_
