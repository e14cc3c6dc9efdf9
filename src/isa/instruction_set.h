// The instruction set of the 8085 as the rest of the system sees it: the texts of every opcode, and
// the keys with which an instruction is entered. All of it is constant data; every text lives as
// long as the program. Texts are exact to the blank, since they are compared, saved and printed.

#ifndef QUILLA_ISA_INSTRUCTION_SET_H_
#define QUILLA_ISA_INSTRUCTION_SET_H_

#include <string_view>

namespace quilla {

inline constexpr int kOpcodeCount = 256;
inline constexpr int kInstructionKeyCount = 80;
inline constexpr int kRegisterKeyCount = 10;
inline constexpr int kDigitKeyCount = 16;

// Opcodes that have rules of their own.
namespace opcode {
inline constexpr int kInrBase = 0x04;
inline constexpr int kDcrBase = 0x05;
inline constexpr int kMovToM = 0x70;  // MOV with destination M and the source still to come.
inline constexpr int kHlt = 0x76;
inline constexpr int kOut = 0xD3;
inline constexpr int kIn = 0xDB;
}  // namespace opcode

// Indexes of the register keys. Those of B to A are also the register codes within an opcode.
namespace reg {
enum : int { kB, kC, kD, kE, kH, kL, kM, kA, kSP, kPSW };
}  // namespace reg

// What the user has to enter after an instruction key.
enum class InstructionClass {
  kNoOperand,
  kByteData,  // A byte or a port address.
  kRegister,  // A register or memory.
  kLabel,     // A 16-bit address.
  kPair,      // A register pair or the stack pointer.
  kLxi,       // A register pair or the stack pointer, then 16 bits.
  kMov,       // A destination, then a source.
  kStack,     // A register pair or PSW.
  kRestart,   // A number from 0 to 7.
  kIndirect,  // Register pair B or D.
  kMvi,       // A register or memory, then a byte.
};

struct InstructionKey {
  std::string_view caption;  // The operation's name.
  int base_opcode;           // The opcode with all operand bits zero.
  std::string_view hint;     // The caption, then in words what operands it takes.
};

// Texts of an opcode. An opcode outside 0 to 255 has empty texts.

// The mnemonic up to its label or data, "MVI  C," for 0Eh; "-" for an invalid opcode. Whether one
// blank or two separate its words, and whether a blank ends it, differs from row to row.
std::string_view MnemonicsLUTList(int opcode) noexcept;

// The bare name of the operation, "MVI" for 0Eh; "-" for an invalid opcode. That of D0h ends with a
// blank: "RNC ".
std::string_view PartialInstList(int opcode) noexcept;

// The default comment of an opcode: what stands before its label or variable, and what after it.
// Both are empty for an invalid opcode.
std::string_view BeforeList(int opcode) noexcept;
std::string_view AfterList(int opcode) noexcept;

// The length in bytes of an opcode with its operand: 1, 2 or 3. Invalid opcodes have length 1.
int InstructionLength(int opcode) noexcept;

// Whether `opcode` is one of the ten values from 0 to 255 that are no instruction.
bool IsInvalidOpcode(int opcode) noexcept;

// Keys by index: 0 to 79 for instructions, 0 to 9 for registers, 0 to 15 for digits, whose index is
// their value. An index outside is an error of the caller.
const InstructionKey& Inst(int index) noexcept;
InstructionClass ClassOf(int key_index) noexcept;
std::string_view RegCaption(int index) noexcept;
std::string_view DigitCaption(int index) noexcept;

// The index of the first instruction key with the caption `bare_name`, or that of the last key,
// HLT, if there is none: "RNC " finds HLT.
int FindInstructionKey(std::string_view bare_name) noexcept;

}  // namespace quilla

#endif  // QUILLA_ISA_INSTRUCTION_SET_H_
