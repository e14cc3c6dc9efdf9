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
  using Limits = std::numeric_limits<std::int64_t>;
  for (const std::int64_t number :
       {std::int64_t{0}, std::int64_t{-5}, Limits::max(), Limits::min()}) {
    EXPECT_EQ(DecimalValue(std::to_string(number)), number);
  }
  EXPECT_EQ(DecimalValue("+07"), 7);
  for (const std::string_view text :
       {"", "+", "-", "+-1", "-+1", "--1", " 1", "1 ", "1.0", "1e3", "0x1", "A"}) {
    EXPECT_EQ(FailureOf([&] { DecimalValue(text); }), ErrorNumber::kNotANumber) << text;
  }
  EXPECT_EQ(FailureOf([] { DecimalValue("9223372036854775808"); }), ErrorNumber::kOverflow);
}

TEST(NumberTextTest, HexadecimalTakesBareDigitsInEitherCase) {
  EXPECT_EQ(HexValue("0aB"), 0xAB);
  EXPECT_EQ(HexValue("FFFFFFFF"), 0xFFFFFFFF);
  EXPECT_EQ(HexText(-32768), "FFFF8000");
  for (const std::string_view text : {"", "G", "-1", "+1", "0x1", " 1", "1 ", "XX", "80h"}) {
    EXPECT_EQ(FailureOf([&] { HexValue(text); }), ErrorNumber::kNotANumber) << text;
  }
  EXPECT_EQ(FailureOf([] { HexValue("100000000"); }), ErrorNumber::kOverflow);
}

}  // namespace
}  // namespace quilla
