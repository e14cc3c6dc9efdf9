// The rows of the program that the marks make: its origins, its instructions and its data bytes.
#ifndef QUILLA_DISASSEMBLER_PROGRAM_LAYOUT_H_
#define QUILLA_DISASSEMBLER_PROGRAM_LAYOUT_H_

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "disassembler/marked_bytes.h"

namespace quilla {

/// The last row of the program table that the stores reach.
inline constexpr int kLastStoredRow = 70000;

struct ProgramLayout {
  static constexpr std::size_t kRows = kLastStoredRow + 1;
  /// The bytes of a row, the opcode first.
  using RowBytes = std::array<ByteDigits, 3>;

  /// By row of the program table: its bytes, and whether they are an instruction or data.
  std::vector<RowBytes> OpcodeStore = std::vector<RowBytes>(kRows);
  std::vector<bool> InstructionFlag = std::vector<bool>(kRows);
  /// For each origin the four digits of its address and, at once behind them, its row in decimal.
  std::vector<std::string> OriginList;
  /// The row that the next byte goes to.
  int LastLine = 0;
};

/// Empties the stores for another file.
void Clear(ProgramLayout& layout);

/// Checks the marks and lays the rows out: each block behind an origin row, with two empty rows
/// before every later origin. Gives the message about the first instruction that cannot be laid
/// out, and nothing if all could. Fails with `kOutsideTable` when there are no bytes and with
/// `kOutsideList` when a row lies outside the stores. What was laid out until then stays.
///
/// Each check starts over, but the origins of a check before stay, and so does what it stored from
/// row 65536 on.
std::optional<std::string> CheckMarks(const std::vector<MarkedByte>& bytes, ProgramLayout& layout);

/// The Opcode cell of a row of the layout. Fails with `kOutsideList` outside the stores.
std::string OpcodeCellOf(const ProgramLayout& layout, int row);

}  // namespace quilla

#endif  // QUILLA_DISASSEMBLER_PROGRAM_LAYOUT_H_
