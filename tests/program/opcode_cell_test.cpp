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

TEST(MnemonicTest, NewNameStandsInPlaceOfTheOld) {
  const struct {
    std::string_view mnemonic, old_name, new_name;
    std::string result;
  } cases[] = {{"JMP  loop", "loop", "a1", "JMP  a1"},
               {"loop", "loop", "x", "x"},
               {"NOP", "longer", "x", "x"},
               {"JMP  loop", "", "x", "JMP  loopx"}};
  for (const auto& [mnemonic, old_name, new_name, result] : cases) {
    EXPECT_EQ(WithOperand(mnemonic, old_name, new_name), result);
  }
}

}  // namespace
}  // namespace quilla
