// Numbers as text: the decimal and hexadecimal forms that tables and lists hold.
#ifndef QUILLA_PLATFORM_NUMBER_TEXT_H_
#define QUILLA_PLATFORM_NUMBER_TEXT_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quilla {

/// The widths that texts are padded to, in digits.
inline constexpr int kByteDigits = 2;
inline constexpr int kAddressDigits = 4;

/// The value of decimal digits with an optional sign. Fails with `kNotANumber` for anything else
/// and with `kOverflow` beyond 64 bits.
std::int64_t DecimalValue(std::string_view text);

/// The value of one or more hexadecimal digits in either case. Fails with `kNotANumber` for
/// anything else and with `kOverflow` beyond 32 bits.
std::uint32_t HexValue(std::string_view text);

/// Upper-case hexadecimal without leading zeros. A negative number has the 32 bits of its two's
/// complement, so -1 gives FFFFFFFF.
std::string HexText(std::int64_t number);

/// HexText with zeros in front up to `digits`.
std::string PaddedHexText(std::int64_t number, int digits);

/// The four digits of an address, or more if it has more.
inline std::string AddressText(std::int64_t address) {
  return PaddedHexText(address, kAddressDigits);
}

/// The values of all characters as hexadecimal digits, -1 for those that are none.
inline constexpr std::array<signed char, 0x100> kValuesOfDigits = [] {
  std::array<signed char, 0x100> values{};
  for (signed char& value : values) value = -1;
  for (signed char i = 0; i < 10; ++i) values[static_cast<std::size_t>('0' + i)] = i;
  for (signed char i = 10; i < 0x10; ++i) {
    values[static_cast<std::size_t>('A' + i - 10)] = i;
    values[static_cast<std::size_t>('a' + i - 10)] = i;
  }
  return values;
}();

/// The value of one hexadecimal digit, or -1 for another character.
constexpr int DigitValue(char digit) { return kValuesOfDigits[static_cast<unsigned char>(digit)]; }

}  // namespace quilla

#endif  // QUILLA_PLATFORM_NUMBER_TEXT_H_
