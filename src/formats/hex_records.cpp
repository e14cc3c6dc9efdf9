#include "formats/hex_records.h"

#include <cstddef>

#include "platform/failure.h"
#include "platform/number_text.h"

namespace quilla {
namespace {

constexpr std::int64_t kFirstFourDigitAddress = 0x1000;
constexpr std::size_t kPaddedHead = 4;
constexpr const char* kDataType = "00";
constexpr std::int64_t kByteValues = 256;
constexpr std::size_t kColon = 1;  // the characters before the first byte
/// The bytes of a record that its count leaves out: count, address, type, checksum.
constexpr std::size_t kFrameBytes = 5;

/// The last two digits of a sum, read as a decimal number: a low byte such as A7 is none.
std::int64_t LowByteAsDecimal(std::int64_t sum) {
  const std::string text = HexText(sum);
  if (text.size() < kByteDigits) throw Failure(ErrorNumber::kOutsideList);
  return DecimalValue(text.substr(text.size() - kByteDigits));
}

bool IsGood(std::string_view record) {
  if (record.empty()) throw Failure(ErrorNumber::kNotANumber);
  const std::size_t bytes = HexValue(record.substr(kColon, kByteDigits)) + kFrameBytes;
  std::int64_t sum = 0;
  for (std::size_t byte = 0; byte < bytes; ++byte) {
    const std::size_t at = kColon + byte * kByteDigits;
    if (at + kByteDigits > record.size()) return false;
    sum += HexValue(record.substr(at, kByteDigits));
  }
  return LowByteAsDecimal(sum) == 0;
}

}  // namespace

std::string RecordHead(std::int64_t address) {
  std::string head = HexText(address) + kDataType;
  if (head.size() < kPaddedHead) head.insert(0, kPaddedHead - head.size(), '0');
  return head;
}

bool HeadNeverEnds(std::int64_t address) {
  return address < kFirstFourDigitAddress && RecordHead(address).size() > kPaddedHead;
}

std::string Checksum(std::string_view record) {
  std::int64_t sum = 0;
  for (std::size_t at = kColon; at + kByteDigits <= record.size(); at += kByteDigits) {
    sum += HexValue(record.substr(at, kByteDigits));
  }
  return PaddedHexText(kByteValues - sum % kByteValues, kByteDigits);
}

bool RecordsAreGood(const TextList& records) {
  for (int i = 0; i + 1 < records.Count(); ++i) {
    if (!IsGood(records[i])) return false;
  }
  return true;
}

void RecordWriter::BeginBlock(std::int64_t address) {
  if (HeadNeverEnds(address)) never_ends_();
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
