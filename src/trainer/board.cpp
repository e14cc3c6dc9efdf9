#include "trainer/board.h"

#include <cctype>
#include <string_view>

#include "platform/number_text.h"

namespace quilla::trainer {
namespace {

constexpr std::string_view kTrigger = "ATV1Q0\r";
constexpr std::string_view kEndRecord = ":00000001FF";
constexpr std::size_t kRecordBytes = 16;

// The fields of a record, in bytes behind its colon.
constexpr std::size_t kCountAt = 0;
constexpr std::size_t kAddressAt = 1;
constexpr std::size_t kTypeAt = 3;
constexpr std::size_t kDataAt = 4;
constexpr std::size_t kFrameBytes = 5;  // all but the data

unsigned ByteOf(std::string_view record, std::size_t byte) {
  return HexValue(record.substr(1 + byte * kByteDigits, kByteDigits));
}

std::size_t LengthFor(std::size_t data_bytes) {
  return 1 + (data_bytes + kFrameBytes) * kByteDigits;
}

/// The low byte of the sum of a record's first bytes.
unsigned Sum(std::string_view record, std::size_t bytes) {
  unsigned sum = 0;
  for (std::size_t byte = 0; byte < bytes; ++byte) sum += ByteOf(record, byte);
  return sum % 0x100;
}

}  // namespace

Board::Event Board::Take(char character) {
  if (character == ':') {
    record_ = character;
    line_.clear();
  } else if (record_.empty()) {
    line_ += character;
    if (line_ == kTrigger) return Event::kTrigger;
    if (line_.size() == kTrigger.size()) line_.erase(0, 1);
  } else if (std::isxdigit(static_cast<unsigned char>(character)) == 0) {
    record_.clear();
    return Event::kBadRecord;
  } else {
    record_ += character;
    const bool has_count = record_.size() >= LengthFor(0);
    if (has_count && record_.size() == LengthFor(ByteOf(record_, kCountAt))) return TakeRecord();
  }
  return Event::kNone;
}

Board::Event Board::TakeRecord() {
  const std::string record = std::exchange(record_, {});
  const std::size_t count = ByteOf(record, kCountAt);
  if (Sum(record, count + kFrameBytes) != 0) return Event::kBadRecord;
  if (record == kEndRecord) return Event::kDownload;
  if (ByteOf(record, kTypeAt) != 0) return Event::kNone;
  unsigned address = ByteOf(record, kAddressAt) * 0x100 + ByteOf(record, kAddressAt + 1);
  for (std::size_t byte = 0; byte < count; ++byte) {
    memory_[static_cast<std::uint16_t>(address++)] =
        static_cast<std::uint8_t>(ByteOf(record, kDataAt + byte));
  }
  stored_ += count;
  return Event::kNone;
}

std::string Board::Image(std::uint16_t first, std::uint16_t last) const {
  std::string image;
  for (auto cell = memory_.lower_bound(first); cell != memory_.upper_bound(last);) {
    const int begin = cell->first;
    std::string data;
    std::size_t count = 0;
    while (count < kRecordBytes && cell != memory_.upper_bound(last) &&
           cell->first == begin + static_cast<int>(count)) {
      data += PaddedHexText((cell++)->second, kByteDigits);
      ++count;
    }
    std::string record = ':' + PaddedHexText(static_cast<int>(count), kByteDigits) +
                         AddressText(begin) + "00" + data;
    const unsigned sum = Sum(record, count + kFrameBytes - 1);
    image += record + PaddedHexText((0x100 - sum) % 0x100, kByteDigits) + "\r\n";
  }
  return image += kEndRecord;
}

}  // namespace quilla::trainer
