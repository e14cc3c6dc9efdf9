#include "assembler/hex_records.h"

#include <cstddef>

#include "platform/number_text.h"

namespace quilla {
namespace {

constexpr std::int64_t kFirstFourDigitAddress = 0x1000;
constexpr std::size_t kPaddedHead = 4;
constexpr const char* kDataType = "00";
constexpr std::int64_t kByteValues = 256;

}  // namespace

std::string RecordHead(std::int64_t address) {
  std::string head = HexText(address) + kDataType;
  if (address < kFirstFourDigitAddress) {
    while (head.size() != kPaddedHead) head.insert(0, 1, '0');
  }
  return head;
}

std::string Checksum(std::string_view record) {
  std::int64_t sum = 0;
  for (std::size_t at = 1; at + kByteDigits <= record.size(); at += kByteDigits) {
    sum += HexValue(record.substr(at, kByteDigits));
  }
  return PaddedHexText(kByteValues - sum % kByteValues, kByteDigits);
}

void RecordWriter::BeginBlock(std::int64_t address) {
  address_ = address;
  line_ = RecordHead(address);
  count_ = 0;
}

void RecordWriter::AddByte(std::string_view byte) {
  line_ += byte;
  if (++count_ < kRecordBytes) return;
  records_.Add(":10" + line_);
  BeginBlock(address_ + kRecordBytes);
}

void RecordWriter::EndBlock() {
  if (count_ > 0) records_.Add(":0" + HexText(count_) + line_);
}

}  // namespace quilla
