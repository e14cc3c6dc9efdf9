#include "formats/hex_records.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string_view>

#include "platform/failure_of.h"

namespace quilla {
namespace {

TEST(HexRecordsTest, AddressAndTypeShareFourDigitsBelow0100) {
  const struct {
    std::int64_t address;
    std::string_view head;
  } cases[] = {{0x0000, "0000"}, {0x0001, "0100"},   {0x000F, "0F00"},   {0x0010, "1000"},
               {0x00FF, "FF00"}, {0x1000, "100000"}, {0xFFFF, "FFFF00"}, {0x10000, "1000000"}};
  for (const auto& [address, head] : cases) EXPECT_EQ(RecordHead(address), head);
}

TEST(HexRecordsTest, From0100To0FFFThereIsNoHead) {
  for (const std::int64_t address : {0x0100, 0x0FFF}) EXPECT_TRUE(HeadNeverEnds(address));
  for (const std::int64_t address : {0x0000, 0x00FF, 0x1000}) EXPECT_FALSE(HeadNeverEnds(address));
}

TEST(HexRecordsTest, ChecksumHasThreeDigitsWhereTheSumIsRound) {
  const struct {
    std::string_view record;
    std::string_view checksum;
  } cases[] = {
      {":0180000000", "7F"},   {":018000007F", "100"},  // 81, 100
      {":01800000FF", "80"},   {":01FFFF00F2", "0F"},   // 180, 2F1
      {":01FFFF0001", "100"},  {":", "100"},            // 200, nothing
      {":01C00001", "3E"},     {":011000000AB", "E5"},  // C2; the odd digit at the end is left out
      {":02ffee00aabb", "AC"},                          // 254
  };
  for (const auto& [record, checksum] : cases) EXPECT_EQ(Checksum(record), checksum) << record;
  EXPECT_EQ(FailureOf([] { Checksum(":018000000X"); }), ErrorNumber::kNotANumber);
  EXPECT_EQ(FailureOf([] { Checksum(":018000003E   0F"); }), ErrorNumber::kNotANumber);
}

TEST(HexRecordsTest, RecordsAreCheckedAgainstCountAndChecksum) {
  const struct {
    const char* record;
    bool good;
  } cases[] = {
      {":018000007F00", true}, {":0000000050B0", false},   // five bytes by its count
      {":0080000080", true},   {":0080000092", false},     // sums of 100 and 112
      {":018000007F", false},  {":0180000000100", false},  // too short, a checksum of three digits
      {":1", false},           {"x0080000080", true},
  };
  for (const auto& [record, good] : cases) {
    TextList records(nullptr, "Records");
    records.Assign({record, "the last is not looked at"});
    EXPECT_EQ(RecordsAreGood(records), good) << record;
  }
  const auto failure_of = [](const char* record) {
    TextList records(nullptr, "Records");
    records.Assign({record, kEndRecord});
    return FailureOf([&] { RecordsAreGood(records); });
  };
  EXPECT_EQ(failure_of(":008000009F"), ErrorNumber::kNotANumber);   // 11F: no decimal number
  EXPECT_EQ(failure_of(":0000000001"), ErrorNumber::kOutsideList);  // 1: one digit
  for (const char* record : {"", ":", ":0080000G80"}) {
    EXPECT_EQ(failure_of(record), ErrorNumber::kNotANumber) << record;
  }
}

}  // namespace
}  // namespace quilla
