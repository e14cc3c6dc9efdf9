// Intel HEX records: cutting bytes into records of up to sixteen, their checksums, and the check of
// records that were read.
#ifndef QUILLA_FORMATS_HEX_RECORDS_H_
#define QUILLA_FORMATS_HEX_RECORDS_H_

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/text_list.h"

namespace quilla {

/// The end record, the last of every image (Intel HEX, record type 01).
inline constexpr const char* kEndRecord = ":00000001FF";

/// The bytes of a full record.
inline constexpr int kRecordBytes = 16;

/// The address and type of a data record. From 1000h up these are the six digits that Intel HEX
/// asks for. Below, zeros are put in front until address and type together have four digits: up
/// to FFh that ends with four. From 100h to FFFh it never ends, and the head is not to be asked
/// for.
std::string RecordHead(std::int64_t address);
bool HeadNeverEnds(std::int64_t address);

/// The checksum of a record that lacks it: 256 less the low byte of the sum of its bytes, at
/// least two digits. A low byte of 0 gives the three digits "100". Fails with `kNotANumber` where
/// the record holds anything but hexadecimal digits behind its colon.
std::string Checksum(std::string_view record);

/// Checks the records of an image, all but the last, against their byte counts and checksums. False
/// at the first record that is too short for its count, or whose bytes sum to a low byte of two
/// decimal digits other than 00. Fails with `kNotANumber` where that low byte has a letter among
/// its digits, or a record holds anything but hexadecimal digits; with `kOutsideList` where the sum
/// has one digit only.
bool RecordsAreGood(const TextList& records);

/// Collects the bytes of one block after the other and adds a record to a list whenever one is
/// full.
class RecordWriter {
 public:
  /// `never_ends` is told, and does not come back, where a record has an address without a head.
  RecordWriter(TextList& records, std::function<void()> never_ends)
      : records_(records), never_ends_(std::move(never_ends)) {}

  void BeginBlock(std::int64_t address);
  /// Adds a byte, as its two digits.
  void AddByte(std::string_view byte);
  /// Adds the record of the bytes that are left over, if there are any.
  void EndBlock();

 private:
  TextList& records_;
  std::function<void()> never_ends_;
  std::int64_t address_ = 0;
  std::string line_;
  int count_ = 0;
};

}  // namespace quilla

#endif  // QUILLA_FORMATS_HEX_RECORDS_H_
