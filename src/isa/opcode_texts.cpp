// What is told by opcode: the rows of the operations spread over the 256 opcodes.

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>
#include <string_view>

#include "isa/fixed_text.h"
#include "isa/instruction_set.h"
#include "isa/operations.h"

namespace quilla {
namespace {

using isa::FixedText;
using isa::kOperations;
using isa::Operation;

template <typename T>
using ByOpcode = std::array<T, kOpcodeCount>;

// The bits in which the opcodes of an operation differ: they name its operands.
constexpr int OperandBits(const Operation& operation) {
  constexpr int kSource = 0x07;
  constexpr int kDestination = 0x38;
  constexpr int kPairBits = 0x30;
  constexpr int kPairBOrD = 0x10;
  constexpr int kFirstWithSource = 0x80;
  switch (operation.operation_class) {
    case InstructionClass::kMov:
      return kDestination | kSource;
    case InstructionClass::kRegister:
      return operation.base_opcode < kFirstWithSource ? kDestination : kSource;
    case InstructionClass::kMvi:
    case InstructionClass::kRestart:
      return kDestination;
    case InstructionClass::kPair:
    case InstructionClass::kLxi:
    case InstructionClass::kStack:
      return kPairBits;
    case InstructionClass::kIndirect:
      return kPairBOrD;
    case InstructionClass::kNoOperand:
    case InstructionClass::kByteData:
    case InstructionClass::kLabel:
      break;
  }
  return 0;
}

// Stands for the opcodes that no operation has.
constexpr Operation kInvalid = {"-", 0, InstructionClass::kNoOperand, "", ""};

// The operation of each opcode. HLT comes after MOV and so keeps its opcode, which MOV's bits would
// read as a move from memory to memory.
constexpr ByOpcode<Operation> kOperationOf = [] {
  ByOpcode<Operation> table{};
  table.fill(kInvalid);
  for (const Operation& operation : kOperations) {
    const int operand_bits = OperandBits(operation);
    for (int opcode = 0; opcode < kOpcodeCount; ++opcode) {
      if ((opcode & ~operand_bits) == operation.base_opcode) {
        table[static_cast<std::size_t>(opcode)] = operation;
      }
    }
  }
  return table;
}();

// A word for each value of three operand bits, or of two.
using EightWords = std::array<std::string_view, 8>;
using FourWords = std::array<std::string_view, 4>;

// How registers and pairs are called.
struct Vocabulary {
  EightWords registers;
  FourWords pairs;
  std::string_view status_word;  // In the place of the last pair.
};

constexpr Vocabulary kNames = {
    .registers = {"B", "C", "D", "E", "H", "L", "M", "A"},
    .pairs = {"B", "D", "H", "SP"},
    .status_word = "PSW",
};

constexpr Vocabulary kPhrases = {
    .registers = {"B-register", "C-register", "D-register", "E-register", "H-register",
                  "L-register", "address pointed by HL-register pair", "Accumulator"},
    .pairs = {"BC-register pair", "DE-register pair", "HL-register pair", "stack pointer"},
    .status_word = "Accumulator and flag register",
};

constexpr EightWords kConditions = {"no zero",    "zero",        "no carry", "carry",
                                    "odd parity", "even parity", "plus",     "minus"};
constexpr EightWords kRestartNumbers = {"0", "1", "2", "3", "4", "5", "6", "7"};
constexpr EightWords kRestartAddresses = {"0000", "0008", "0010", "0018",
                                          "0020", "0028", "0030", "0038"};

// What the letter in braces stands for in the texts of `opcode`. Throws std::invalid_argument for
// any other letter, which in constant data does not compile.
constexpr std::string_view WordFor(char letter, std::size_t opcode, const Vocabulary& vocabulary) {
  const std::size_t low = opcode & 7;
  const std::size_t middle = opcode >> 3 & 7;
  const std::size_t pair = opcode >> 4 & 3;
  switch (letter) {
    case 's':
      return vocabulary.registers[low];
    case 'd':
      return vocabulary.registers[middle];
    case 'p':
      return vocabulary.pairs[pair];
    case 'w':
      return pair == vocabulary.pairs.size() - 1 ? vocabulary.status_word : vocabulary.pairs[pair];
    case 'c':
      return kConditions[middle];
    case 'n':
      return kRestartNumbers[middle];
    case 'a':
      return kRestartAddresses[middle];
    default:
      throw std::invalid_argument("no such letter");
  }
}

template <std::size_t kCapacity>
constexpr FixedText<kCapacity> Fill(std::string_view form, std::size_t opcode,
                                    const Vocabulary& vocabulary) {
  FixedText<kCapacity> text;
  while (!form.empty()) {
    const std::size_t plain = std::min(form.find('{'), form.size());
    text.Append(form.substr(0, plain));
    form.remove_prefix(plain);
    if (!form.empty()) {
      text.Append(WordFor(form[1], opcode, vocabulary));
      form.remove_prefix(std::string_view("{?}").size());
    }
  }
  return text;
}

// The opcodes whose mnemonic ends with a blank that the others of their operation do not have.
constexpr std::array<std::size_t, 6> kBlankAfterMnemonic = {0x06, 0x16, 0x26, 0x68, 0x80, 0xFF};

constexpr auto kMnemonics = [] {
  constexpr std::size_t kLongest = 10;
  ByOpcode<FixedText<kLongest>> texts{};
  for (std::size_t opcode = 0; opcode < texts.size(); ++opcode) {
    texts[opcode] = Fill<kLongest>(kOperationOf[opcode].mnemonic, opcode, kNames);
  }
  for (const std::size_t opcode : kBlankAfterMnemonic) {
    texts[opcode].Append(" ");
  }
  return texts;
}();

constexpr auto kBefore = [] {
  constexpr std::size_t kLongest = 90;
  constexpr std::size_t kSbbM = 0x9E;  // Worded unlike the rest of its operation.
  ByOpcode<FixedText<kLongest>> texts{};
  for (std::size_t opcode = 0; opcode < texts.size(); ++opcode) {
    if (opcode == kSbbM) {
      texts[opcode].Append("Subtract with borrow, content pointed by HL-register pair");
      texts[opcode].Append(" from content of Accumulator.");
    } else {
      texts[opcode] = Fill<kLongest>(kOperationOf[opcode].comment_before, opcode, kPhrases);
    }
  }
  return texts;
}();

constexpr auto kAfter = [] {
  constexpr std::size_t kLongest = 48;
  ByOpcode<FixedText<kLongest>> texts{};
  for (std::size_t opcode = 0; opcode < texts.size(); ++opcode) {
    texts[opcode] = Fill<kLongest>(kOperationOf[opcode].comment_after, opcode, kPhrases);
  }
  return texts;
}();

constexpr bool IsOpcode(int opcode) { return opcode >= 0 && opcode < kOpcodeCount; }

template <typename Texts>
std::string_view TextAt(const Texts& texts, int opcode) noexcept {
  return IsOpcode(opcode) ? texts[static_cast<std::size_t>(opcode)].view() : std::string_view();
}

const Operation& OperationAt(int opcode) noexcept {
  return IsOpcode(opcode) ? kOperationOf[static_cast<std::size_t>(opcode)] : kInvalid;
}

}  // namespace

std::string_view MnemonicsLUTList(int opcode) noexcept { return TextAt(kMnemonics, opcode); }

std::string_view PartialInstList(int opcode) noexcept {
  constexpr int kRnc = 0xD0;
  const std::string_view mnemonic = MnemonicsLUTList(opcode);
  return opcode == kRnc ? mnemonic : isa::BareName(mnemonic);
}

std::string_view BeforeList(int opcode) noexcept { return TextAt(kBefore, opcode); }

std::string_view AfterList(int opcode) noexcept { return TextAt(kAfter, opcode); }

int InstructionLength(int opcode) noexcept {
  switch (OperationAt(opcode).operation_class) {
    case InstructionClass::kByteData:
    case InstructionClass::kMvi:
      return 2;
    case InstructionClass::kLabel:
    case InstructionClass::kLxi:
      return 3;
    default:
      return 1;
  }
}

bool IsInvalidOpcode(int opcode) noexcept {
  return IsOpcode(opcode) && OperationAt(opcode).mnemonic == kInvalid.mnemonic;
}

}  // namespace quilla
