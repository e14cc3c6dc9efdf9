#include "platform/number_text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "platform/failure_of.h"

namespace quilla {
namespace {

TEST(NumberTextTest, DecimalTakesDigitsWithASign) {
  const struct {
    std::string_view text;
    std::int64_t value;
  } cases[] = {
      {"0", 0},
      {"-5", -5},
      {"+7", 7},
      {"007", 7},
      {"9223372036854775807", std::numeric_limits<std::int64_t>::max()},
      {"-9223372036854775808", std::numeric_limits<std::int64_t>::min()},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(DecimalValue(text), value) << text;
  for (const std::string_view text :
       {"", "+", "-", "+-1", "-+1", "--1", " 1", "1 ", "1.0", "1e3", "0x1", "A"}) {
    EXPECT_EQ(FailureOf([&] { DecimalValue(text); }), ErrorNumber::kNotANumber) << text;
  }
  EXPECT_EQ(FailureOf([] { DecimalValue("9223372036854775808"); }), ErrorNumber::kOverflow);
}

TEST(NumberTextTest, HexadecimalTakesBareDigitsInEitherCase) {
  const struct {
    std::string_view text;
    std::uint32_t value;
  } cases[] = {{"0", 0}, {"ff", 0xFF}, {"0aB", 0xAB}, {"FFFFFFFF", 0xFFFFFFFF}};
  for (const auto& [text, value] : cases) EXPECT_EQ(HexValue(text), value) << text;
  for (const std::string_view text : {"", "G", "-1", "+1", "0x1", " 1", "1 ", "XX", "80h"}) {
    EXPECT_EQ(FailureOf([&] { HexValue(text); }), ErrorNumber::kNotANumber) << text;
  }
  EXPECT_EQ(FailureOf([] { HexValue("100000000"); }), ErrorNumber::kOverflow);
}

TEST(NumberTextTest, HexadecimalTextIsUpperCaseAndPaddedAsAddress) {
  const struct {
    std::int64_t number;
    std::string text;
    std::string address;
  } cases[] = {
      {0, "0", "0000"},
      {10, "A", "000A"},
      {0xFFF, "FFF", "0FFF"},
      {0x1000, "1000", "1000"},
      {0x10001, "10001", "10001"},
      {-1, "FFFFFFFF", "FFFFFFFF"},
      {-32768, "FFFF8000", "FFFF8000"},
  };
  for (const auto& [number, text, address] : cases) {
    EXPECT_EQ(HexText(number), text);
    EXPECT_EQ(AddressText(number), address);
  }
}

}  // namespace
}  // namespace quilla
