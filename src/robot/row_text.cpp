#include "robot/row_text.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "isa/instruction_set.h"
#include "robot/words.h"

namespace quilla::robot {
namespace {

constexpr int kRestarts = 8;

/// What an operand may be.
enum class Operand { kRegister, kPairOrSp, kPairOrPsw, kIndirectPair, kDigit, kLabel, kVariable };

std::vector<Operand> OperandsOf(InstructionClass instruction) {
  switch (instruction) {
    case InstructionClass::kNoOperand:
      return {};
    case InstructionClass::kByteData:
      return {Operand::kVariable};
    case InstructionClass::kRegister:
      return {Operand::kRegister};
    case InstructionClass::kLabel:
      return {Operand::kLabel};
    case InstructionClass::kPair:
      return {Operand::kPairOrSp};
    case InstructionClass::kLxi:
      return {Operand::kPairOrSp, Operand::kLabel};
    case InstructionClass::kMov:
      return {Operand::kRegister, Operand::kRegister};
    case InstructionClass::kStack:
      return {Operand::kPairOrPsw};
    case InstructionClass::kRestart:
      return {Operand::kDigit};
    case InstructionClass::kIndirect:
      return {Operand::kIndirectPair};
    case InstructionClass::kMvi:
      return {Operand::kRegister, Operand::kVariable};
  }
  return {};
}

/// The keys that may be pressed for an operand; none for a name, which is typed.
std::vector<int> KeysFor(Operand operand) {
  switch (operand) {
    case Operand::kRegister:
      return {reg::kB, reg::kC, reg::kD, reg::kE, reg::kH, reg::kL, reg::kM, reg::kA};
    case Operand::kPairOrSp:
      return {reg::kB, reg::kD, reg::kH, reg::kSP};
    case Operand::kPairOrPsw:
      return {reg::kB, reg::kD, reg::kH, reg::kPSW};
    case Operand::kIndirectPair:
      return {reg::kB, reg::kD};
    default:
      return {};
  }
}

std::string_view Trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  text.remove_suffix(text.size() - (text.find_last_not_of(kBlanks) + 1));
  return text;
}

std::vector<std::string_view> SplitAtCommas(std::string_view text) {
  std::vector<std::string_view> parts;
  if (text.empty()) return parts;
  for (std::size_t comma = text.find(','); comma != std::string_view::npos;
       comma = text.find(',')) {
    parts.push_back(Trimmed(text.substr(0, comma)));
    text.remove_prefix(comma + 1);
  }
  parts.push_back(Trimmed(text));
  return parts;
}

/// Adds the key or the name of an operand; false if it cannot be one.
bool Add(RowKeys& keys, Operand operand, std::string_view text) {
  if (text.empty()) return false;
  if (operand == Operand::kLabel || operand == Operand::kVariable) {
    (operand == Operand::kLabel ? keys.label : keys.variable) = text;
    return true;
  }
  if (operand == Operand::kDigit) {
    for (int digit = 0; digit < kRestarts; ++digit) {
      if (DigitCaption(digit) == text) keys.digits.push_back(digit);
    }
    return !keys.digits.empty();
  }
  for (const int key : KeysFor(operand)) {
    if (RegCaption(key) != text) continue;
    keys.registers.push_back(key);
    return keys.registers != std::vector<int>{reg::kM, reg::kM};  // there is no MOV M,M
  }
  return false;
}

/// The keys of an instruction; nothing for a text that is none.
std::optional<RowKeys> FindKeys(std::string_view text) {
  const std::size_t length = std::min(text.find_first_of(kBlanks), text.size());
  const std::string_view mnemonic = text.substr(0, length);
  RowKeys keys;
  keys.instruction = FindInstructionKey(mnemonic);
  if (Inst(keys.instruction).caption != mnemonic) return std::nullopt;
  const std::vector<Operand> operands = OperandsOf(ClassOf(keys.instruction));
  const std::vector<std::string_view> words = SplitAtCommas(Trimmed(text.substr(length)));
  if (words.size() != operands.size()) return std::nullopt;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (!Add(keys, operands[i], words[i])) return std::nullopt;
  }
  return keys;
}

}  // namespace

RowKeys KeysOf(std::string_view text) {
  const std::optional<RowKeys> keys = FindKeys(Trimmed(text));
  if (!keys) throw NotACommand(Quoted(text) + " is no instruction");
  return *keys;
}

}  // namespace quilla::robot
