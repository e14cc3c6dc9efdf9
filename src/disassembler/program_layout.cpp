#include "disassembler/program_layout.h"

#include <algorithm>
#include <cstdint>

#include "isa/instruction_set.h"
#include "platform/failure.h"
#include "platform/number_text.h"
#include "program/opcode_cell.h"

namespace quilla {
namespace {

/// A check empties the rows before this one.
constexpr std::ptrdiff_t kRowsEmptied = 65536;
constexpr int kBeforeFirstOrigin = -2;
/// From the row behind a block to the origin of the next.
constexpr int kOriginGap = 2;
/// No byte of a first block is taken for one that follows it, but one at 10001h.
constexpr std::uint32_t kNothingBefore = 65537;
/// The one undefined opcode that is taken for an instruction, of one byte.
constexpr int kTolerated = 0x18;

/// The place of a row in the stores.
std::size_t Place(int row) {
  if (row < 0 || row > kLastStoredRow) throw Failure(ErrorNumber::kOutsideList);
  return static_cast<std::size_t>(row);
}

std::string FaultAt(const char* fault, const MarkedByte& opcode) {
  return fault + AddressText(opcode.address) + ". Please check data table.";
}

void OpenBlock(const MarkedByte& first, ProgramLayout& layout) {
  layout.LastLine += kOriginGap;
  layout.OriginList.push_back(AddressText(first.address) + std::to_string(layout.LastLine));
  ++layout.LastLine;
}

/// Whether the bytes behind an opcode are there as its operand.
bool HasOperand(const std::vector<MarkedByte>& bytes, std::size_t opcode_at, std::size_t length) {
  if (opcode_at + length > bytes.size()) return false;
  for (std::size_t i = 1; i < length; ++i) {
    const MarkedByte& operand = bytes[opcode_at + i];
    if (operand.category != Category::kMnemonic) return false;
    if (operand.address != bytes[opcode_at].address + i) return false;
  }
  return true;
}

}  // namespace

void Clear(ProgramLayout& layout) {
  std::fill(layout.OpcodeStore.begin(), layout.OpcodeStore.end(), ProgramLayout::RowBytes{});
  std::fill(layout.InstructionFlag.begin(), layout.InstructionFlag.end(), false);
  layout.OriginList.clear();
}

std::optional<std::string> CheckMarks(const std::vector<MarkedByte>& bytes, ProgramLayout& layout) {
  std::fill_n(layout.OpcodeStore.begin(), kRowsEmptied, ProgramLayout::RowBytes{});
  layout.LastLine = kBeforeFirstOrigin;
  if (bytes.empty()) throw Failure(ErrorNumber::kOutsideTable);
  std::uint32_t next_address = kNothingBefore;
  for (std::size_t at = 0; at < bytes.size();) {
    const MarkedByte& first = bytes[at];
    if (first.category == Category::kUnwanted) {
      ++at;
      continue;
    }
    if (at == 0 || first.address != next_address) OpenBlock(first, layout);
    const std::size_t row = Place(layout.LastLine);
    const bool is_instruction = first.category == Category::kMnemonic;
    layout.InstructionFlag[row] = is_instruction;
    std::size_t length = 1;
    if (is_instruction) {
      const auto opcode = static_cast<int>(HexValue(first.digits.text()));
      if (IsInvalidOpcode(opcode) && opcode != kTolerated) {
        return FaultAt("Invalid Hex Value in address ", first);
      }
      length = static_cast<std::size_t>(InstructionLength(opcode));
    }
    layout.OpcodeStore[row][0] = first.digits;
    if (!HasOperand(bytes, at, length)) {
      return FaultAt("Data missing for instruction in Address ", first);
    }
    for (std::size_t i = 1; i < length; ++i) layout.OpcodeStore[row][i] = bytes[at + i].digits;
    next_address = first.address + static_cast<std::uint32_t>(length);
    at += length;
    ++layout.LastLine;
  }
  return std::nullopt;
}

std::string OpcodeCellOf(const ProgramLayout& layout, int row) {
  std::string cell;
  for (const ByteDigits& byte : layout.OpcodeStore[Place(row)]) {
    if (!byte.IsEmpty()) AppendByte(cell, byte.text());
  }
  return cell;
}

}  // namespace quilla
