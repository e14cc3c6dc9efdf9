#include "disassembler/marked_bytes.h"

#include <cstddef>

#include "platform/failure.h"
#include "platform/number_text.h"

namespace quilla {
namespace {

// Where the fields of a record begin, behind its colon, in characters.
constexpr std::size_t kCountAt = 1;
constexpr std::size_t kAddressAt = 3;
constexpr std::size_t kDataAt = 9;

std::string_view Digits(std::string_view record, std::size_t at, std::size_t count) {
  if (at + count > record.size()) throw Failure(ErrorNumber::kOutsideList);
  return record.substr(at, count);
}

}  // namespace

std::string_view TextOf(Category category) {
  switch (category) {
    case Category::kDataByte:
      return "Data Byte";
    case Category::kMnemonic:
      return "Mnemonic";
    default:
      return "Unwanted";
  }
}

std::vector<MarkedByte> ListBytes(const std::vector<std::string>& records) {
  std::vector<MarkedByte> bytes;
  for (std::size_t i = 0; i + 1 < records.size(); ++i) {
    const std::string_view record = records[i];
    const std::uint32_t count = HexValue(Digits(record, kCountAt, kByteDigits));
    const std::uint32_t address = HexValue(Digits(record, kAddressAt, kAddressDigits));
    for (std::uint32_t j = 0; j < count; ++j) {
      const std::size_t at = kDataAt + std::size_t{j} * kByteDigits;
      bytes.push_back({address + j, ByteDigits(Digits(record, at, kByteDigits))});
    }
  }
  return bytes;
}

}  // namespace quilla
