// The keys of the panel: their captions, and what the instruction keys stand for.

#include <array>
#include <cassert>
#include <cstddef>
#include <string_view>

#include "isa/fixed_text.h"
#include "isa/instruction_set.h"
#include "isa/operations.h"

namespace quilla {
namespace {

using isa::kOperations;

constexpr auto kHints = [] {
  constexpr std::size_t kLongest = 44;
  std::array<isa::FixedText<kLongest>, kInstructionKeyCount> hints{};
  for (std::size_t i = 0; i < hints.size(); ++i) {
    hints[i].Append(isa::BareName(kOperations[i].mnemonic));
    if (!kOperations[i].operands.empty()) {
      hints[i].Append(" ").Append(kOperations[i].operands);
    }
  }
  return hints;
}();

constexpr auto kInstructionKeys = [] {
  std::array<InstructionKey, kInstructionKeyCount> keys{};
  for (std::size_t i = 0; i < keys.size(); ++i) {
    keys[i] = {.caption = isa::BareName(kOperations[i].mnemonic),
               .base_opcode = kOperations[i].base_opcode,
               .hint = kHints[i].view()};
  }
  return keys;
}();

constexpr std::array<std::string_view, kRegisterKeyCount> kRegisterCaptions = {
    "B", "C", "D", "E", "H", "L", "M", "A", "SP", "PSW"};

constexpr std::array<std::string_view, kDigitKeyCount> kDigitCaptions = {
    "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "A", "B", "C", "D", "E", "F"};

template <typename Keys>
const auto& At(const Keys& keys, int index) noexcept {
  assert(index >= 0 && static_cast<std::size_t>(index) < keys.size());
  return keys[static_cast<std::size_t>(index)];
}

}  // namespace

const InstructionKey& Inst(int index) noexcept { return At(kInstructionKeys, index); }

InstructionClass ClassOf(int key_index) noexcept {
  return At(kOperations, key_index).operation_class;
}

std::string_view RegCaption(int index) noexcept { return At(kRegisterCaptions, index); }

std::string_view DigitCaption(int index) noexcept { return At(kDigitCaptions, index); }

int FindInstructionKey(std::string_view bare_name) noexcept {
  int index = 0;
  while (index < kInstructionKeyCount - 1 && Inst(index).caption != bare_name) {
    ++index;
  }
  return index;
}

}  // namespace quilla
