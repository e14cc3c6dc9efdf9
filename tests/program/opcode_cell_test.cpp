#include "program/opcode_cell.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "program/mnemonic.h"

namespace quilla {
namespace {

TEST(OpcodeCellTest, LengthAloneTellsTheBytes) {
  const struct {
    std::string_view cell;
    int count;
    std::string_view bytes[3];
  } cases[] = {
      {"", 0, {"", "", ""}},
      {"0", 0, {"0", "", ""}},
      {"C9", 1, {"C9", "", ""}},
      {"3E   XX", 2, {"3E", "XX", ""}},
      {"C3   10   80", 3, {"C3", "10", "80"}},
      {"C3   10   8", 0, {"C3", "10", "8"}},
      {"anytext", 2, {"an", "xt", ""}},
      {"C3   10   80 ", 0, {"C3", "10", "80"}},
  };
  for (const auto& [cell, count, bytes] : cases) {
    EXPECT_EQ(ByteCount(cell), count) << cell;
    EXPECT_EQ(HasVariable(cell), count == 2) << cell;
    EXPECT_EQ(HasLabel(cell), count == 3) << cell;
    int index = 0;
    for (const std::string_view byte : bytes) EXPECT_EQ(ByteAt(cell, index++), byte) << cell;
  }
}

TEST(OpcodeCellTest, OperandsReplaceWhatStoodBehindTheOpcode) {
  EXPECT_EQ(OpcodeCell(0), "00");
  EXPECT_EQ(OpcodeCell(0xF), "0F");
  EXPECT_EQ(OpcodeCell(0xFF), "FF");
  EXPECT_EQ(WithVariable("3E", "0F"), "3E   0F");
  EXPECT_EQ(WithVariable("3E   XX   XX", "0F"), "3E   0F");
  EXPECT_EQ(WithLabel("C3", "8010"), "C3   10   80");
  EXPECT_EQ(WithLabel("C3   AB   CD", "XXXX"), "C3   XX   XX");
  EXPECT_EQ(AddressIn(WithLabel("C3", "8010")), "8010");
  // Operands that are no four digits give what there is.
  EXPECT_EQ(WithLabel("", ""), "      ");
  EXPECT_EQ(WithLabel("C3", "123"), "C3   3   12");
  EXPECT_EQ(AddressIn("C3   10"), "10");
}

TEST(MnemonicTest, NewNameStandsInPlaceOfTheOld) {
  const struct {
    std::string_view mnemonic, old_name, new_name;
    std::string result;
  } cases[] = {
      {"JMP  loop", "loop", "a1", "JMP  a1"},
      {"JMP  a", "a", "longer", "JMP  longer"},
      {"loop", "loop", "x", "x"},
      {"NOP", "longer", "x", "x"},
      {"", "old", "x", "x"},
      {"JMP  loop", "", "x", "JMP  loopx"},
  };
  for (const auto& [mnemonic, old_name, new_name, result] : cases) {
    EXPECT_EQ(WithOperand(mnemonic, old_name, new_name), result);
  }
}

}  // namespace
}  // namespace quilla
