// The Opcode cell of a row: one, two or three bytes as two hexadecimal digits each, three blanks
// between them. Its length alone tells how many bytes it holds and what kind of operand.
#ifndef QUILLA_PROGRAM_OPCODE_CELL_H_
#define QUILLA_PROGRAM_OPCODE_CELL_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace quilla {

/// The three lengths of an Opcode cell, in characters.
inline constexpr std::size_t kOneByteCell = 2;
inline constexpr std::size_t kTwoByteCell = 7;
inline constexpr std::size_t kThreeByteCell = 12;

/// The number of bytes in a cell, 0 for a text of any other length.
int ByteCount(std::string_view cell);

/// Whether the operand of the cell is a variable, or a label.
inline bool HasVariable(std::string_view cell) { return cell.size() == kTwoByteCell; }
inline bool HasLabel(std::string_view cell) { return cell.size() == kThreeByteCell; }

/// The digits of the byte at `index` (0 to 2); empty where the cell ends before.
std::string_view ByteAt(std::string_view cell, int index);

/// The opcode of a cell. Fails with `kNotANumber` where its first two characters are no digits.
int OpcodeOf(std::string_view cell);

/// The cell of an opcode alone.
std::string OpcodeCell(int opcode);
/// What an operand adds to the cell of an opcode: one byte, or an address of four digits with its
/// low byte first, with blanks in front.
std::string VariableBytes(std::string_view byte);
std::string LabelBytes(std::string_view address);
/// Adds the digits of a byte to a cell.
void AppendByte(std::string& cell, std::string_view byte);
/// The opcode of `cell` with one operand byte behind it.
std::string WithVariable(std::string_view cell, std::string_view byte);
/// The opcode of `cell` with an address of four digits behind it, low byte first.
std::string WithLabel(std::string_view cell, std::string_view address);

/// The address that a three-byte cell holds, high byte first.
std::string AddressIn(std::string_view cell);

}  // namespace quilla

#endif  // QUILLA_PROGRAM_OPCODE_CELL_H_
