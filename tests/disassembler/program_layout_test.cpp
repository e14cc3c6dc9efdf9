// Where the stores of the check have their edges.
#include "disassembler/program_layout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/failure.h"

namespace quilla {
namespace {

/// Bytes of value 00 from 0000 on, all marked.
std::vector<MarkedByte> Zeros(std::size_t count, Category category) {
  std::vector<MarkedByte> bytes(count, {0, ByteDigits("00"), category});
  for (std::size_t i = 0; i < count; ++i) bytes[i].address = static_cast<std::uint32_t>(i);
  return bytes;
}

TEST(ProgramLayoutTest, TheStoresReachToRow70000) {
  for (const Category category : {Category::kMnemonic, Category::kDataByte}) {
    ProgramLayout layout;
    EXPECT_EQ(CheckMarks(Zeros(kLastStoredRow, category), layout), std::nullopt);
    EXPECT_EQ(layout.LastLine, kLastStoredRow + 1);
    EXPECT_EQ(OpcodeCellOf(layout, kLastStoredRow), "00");
    EXPECT_THROW(OpcodeCellOf(layout, kLastStoredRow + 1), Failure);
    EXPECT_THROW(CheckMarks(Zeros(kLastStoredRow + 1, category), layout), Failure);
    EXPECT_EQ(layout.LastLine, kLastStoredRow + 1);
    EXPECT_EQ(layout.OriginList, std::vector<std::string>({"00000", "00000"}));
  }
}

}  // namespace
}  // namespace quilla
