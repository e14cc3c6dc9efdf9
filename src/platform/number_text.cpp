#include "platform/number_text.h"

#include <charconv>

#include "platform/failure.h"

namespace quilla {
namespace {

constexpr int kDecimal = 10;
constexpr int kHexadecimal = 16;

/// Converts a whole text, with nothing before or behind the digits but a minus of a signed type.
template <typename Number>
Number Convert(std::string_view text, int base) {
  Number value{};
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value, base);
  if (error == std::errc::result_out_of_range) throw Failure(ErrorNumber::kOverflow);
  if (error != std::errc() || stop != end) throw Failure(ErrorNumber::kNotANumber);
  return value;
}

}  // namespace

std::int64_t DecimalValue(std::string_view text) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  return Convert<std::int64_t>(text, kDecimal);
}

std::uint32_t HexValue(std::string_view text) { return Convert<std::uint32_t>(text, kHexadecimal); }

std::string HexText(std::int64_t number) { return PaddedHexText(number, 1); }

std::string PaddedHexText(std::int64_t number, int digits) {
  static constexpr std::string_view kDigits = "0123456789ABCDEF";
  auto rest = number < 0 ? static_cast<std::uint32_t>(number) : static_cast<std::uint64_t>(number);
  char buffer[kHexadecimal];
  char* const end = buffer + kHexadecimal;
  char* begin = end;
  while (rest != 0 || end - begin < digits) {
    *--begin = kDigits[rest % kHexadecimal];
    rest /= kHexadecimal;
  }
  return {begin, end};
}

}  // namespace quilla
