#include "program/opcode_cell.h"

#include "platform/number_text.h"

namespace quilla {
namespace {

constexpr std::string_view kBetweenBytes = "   ";
constexpr std::size_t kDigits = kByteDigits;
constexpr std::size_t kByteStep = kDigits + kBetweenBytes.size();

std::string_view Part(std::string_view text, std::size_t position) {
  return position < text.size() ? text.substr(position, kDigits) : std::string_view();
}

}  // namespace

int ByteCount(std::string_view cell) {
  switch (cell.size()) {
    case kOneByteCell:
      return 1;
    case kTwoByteCell:
      return 2;
    case kThreeByteCell:
      return 3;
    default:
      return 0;
  }
}

std::string_view ByteAt(std::string_view cell, int index) {
  return Part(cell, static_cast<std::size_t>(index) * kByteStep);
}

// A cell of the program begins with two digits; what else a file may hold is for HexValue.
int OpcodeOf(std::string_view cell) {
  if (cell.size() >= kDigits) {
    const int high = DigitValue(cell[0]);
    const int low = DigitValue(cell[1]);
    if (high >= 0 && low >= 0) return high * 0x10 + low;
  }
  return static_cast<int>(HexValue(ByteAt(cell, 0)));
}

std::string OpcodeCell(int opcode) { return PaddedHexText(opcode, kByteDigits); }

std::string VariableBytes(std::string_view byte) { return std::string(kBetweenBytes).append(byte); }

std::string LabelBytes(std::string_view address) {
  return VariableBytes(Part(address, kDigits)) + VariableBytes(Part(address, 0));
}

void AppendByte(std::string& cell, std::string_view byte) {
  if (!cell.empty()) cell.append(kBetweenBytes);
  cell.append(byte);
}

std::string WithVariable(std::string_view cell, std::string_view byte) {
  return std::string(ByteAt(cell, 0)) + VariableBytes(byte);
}

std::string WithLabel(std::string_view cell, std::string_view address) {
  return std::string(ByteAt(cell, 0)) + LabelBytes(address);
}

std::string AddressIn(std::string_view cell) {
  const std::string_view high = ByteAt(cell, 2);
  const std::string_view low = ByteAt(cell, 1);
  if (high.size() == kDigits) return {high[0], high[1], low[0], low[1]};
  return std::string(high).append(low);
}

}  // namespace quilla
