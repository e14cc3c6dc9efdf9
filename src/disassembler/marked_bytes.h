// The bytes of a hex file as the user marks them: each with its address and its category.
#ifndef QUILLA_DISASSEMBLER_MARKED_BYTES_H_
#define QUILLA_DISASSEMBLER_MARKED_BYTES_H_

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quilla {

/// What a byte is for the new program; the number is the index of its option.
enum class Category : int { kDataByte = 0, kMnemonic = 1, kUnwanted = 2 };

/// The text of a category, as the table shows it.
std::string_view TextOf(Category category);

/// The two hexadecimal digits of a byte as they stood in the file, or none.
class ByteDigits {
 public:
  ByteDigits() = default;
  /// `digits` must be two characters.
  explicit ByteDigits(std::string_view digits) : digits_{digits[0], digits[1]} {}

  bool IsEmpty() const { return digits_[0] == '\0'; }
  std::string_view text() const { return {digits_.data(), IsEmpty() ? 0 : digits_.size()}; }

 private:
  std::array<char, 2> digits_{};
};

struct MarkedByte {
  std::uint32_t address = 0;  // up to 100FEh: a record at FFFFh may run on
  ByteDigits digits;
  Category category = Category::kUnwanted;
};

/// The bytes of all records but the last, in the order of the file and whatever the type of their
/// record, each unwanted so far. Fails with `kNotANumber` or `kOutsideList` where a record lacks
/// digits of its count, its address or its bytes.
std::vector<MarkedByte> ListBytes(const std::vector<std::string>& records);

}  // namespace quilla

#endif  // QUILLA_DISASSEMBLER_MARKED_BYTES_H_
