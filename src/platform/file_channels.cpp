#include "platform/file_channels.h"

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

#include "platform/failure.h"
#include "platform/number_text.h"

namespace quilla {
namespace {

constexpr char kQuote = '"';
constexpr char kComma = ',';
constexpr std::string_view kDelimiters = ",\r\n";
constexpr std::size_t kBlockSize = 0x40000;

template <typename Number>
Number Narrow(std::int64_t value) {
  if (value < std::numeric_limits<Number>::min() || value > std::numeric_limits<Number>::max()) {
    throw Failure(ErrorNumber::kOverflow);
  }
  return static_cast<Number>(value);
}

/// An item: what it holds, and how many characters it takes with its quotes and its delimiter.
struct Item {
  std::string_view text;
  std::size_t size;
};

/// The item that a text begins with. Found with a pointer, which is quicker than to shorten views:
/// a project file has six items in every row.
Item FirstItem(std::string_view text) {
  const char* next = text.data();
  const char* const end = next + text.size();
  const auto skip = [&next, end](char c) {
    if (next == end || *next != c) return false;
    ++next;
    return true;
  };
  const bool quoted = skip(kQuote);
  const std::string_view behind(next, end);
  const std::string_view item =
      behind.substr(0, quoted ? behind.find(kQuote) : behind.find_first_of(kDelimiters));
  next += item.size();
  if (quoted) skip(kQuote);
  if (!skip(kComma)) {
    skip('\r');
    skip('\n');
  }
  return {item, static_cast<std::size_t>(next - text.data())};
}

}  // namespace

void AppendText(std::string& file, std::string_view text, std::string_view end) {
  file += kQuote;
  file += text;
  file += kQuote;
  file += end;
}

void AppendNumber(std::string& file, std::int64_t number) {
  file += std::to_string(number);
  file += kLineEnd;
}

bool FileChannels::File::Flush() {
  if (!flushed) flushed = stored->Flush();
  return flushed;
}

void FileChannels::File::ReadMore() {
  read.erase(0, taken);
  taken = 0;
  const std::size_t known = read.size();
  read.resize(known + std::max(known, kBlockSize));
  const std::optional<std::size_t> size = stored->Read(&read[known], read.size() - known);
  read.resize(known + size.value_or(0));
  if (!size) throw Failure(ErrorNumber::kReadFailed);
  at_end = *size == 0;
}

std::string_view FileChannels::File::TakeItem() {
  while (true) {
    const std::string_view rest = Rest();
    const Item item = FirstItem(rest);
    if (item.size == rest.size() && !at_end) {  // it may go on in what is read next
      ReadMore();
      continue;
    }
    if (rest.empty()) throw Failure(ErrorNumber::kPastEndOfFile);
    taken += item.size;
    return item.text;
  }
}

void FileChannels::OpenOutput(int channel, const std::string& path) {
  Open(channel, path, Use::kOutput);
}

void FileChannels::OpenInput(int channel, const std::string& path) {
  Open(channel, path, Use::kInput);
}

void FileChannels::Open(int channel, const std::string& path, Use use) {
  if (IsOpen(channel)) throw Failure(ErrorNumber::kChannelOpen);
  Storage::File stored = use == Use::kInput ? storage_.OpenInput(path) : copies_.Replace(path);
  if (stored == nullptr) {
    if (use == Use::kInput) copies_.NoteReading(path, false);
    throw Failure(ErrorNumber::kFileNotFound);
  }
  files_.emplace(channel, File{.stored = std::move(stored), .path = path, .use = use});
}

void FileChannels::Close(int channel) {
  const auto found = files_.find(channel);
  if (found == files_.end()) return;
  File file = std::move(found->second);
  files_.erase(found);
  if (file.use == Use::kInput) {
    copies_.NoteReading(file.path, true);
    return;
  }
  const bool flushed = file.Flush();
  if (!file.stored->Close() || !flushed) throw Failure(ErrorNumber::kWriteFailed);
  copies_.Release(file.path);
}

void FileChannels::Abandon(int channel) {
  const auto found = files_.find(channel);
  if (found == files_.end()) return;
  if (found->second.use == Use::kInput) copies_.NoteReading(found->second.path, false);
  files_.erase(found);
}

FileChannels::File& FileChannels::FileOn(int channel, Use use) {
  const auto found = files_.find(channel);
  if (found == files_.end() || found->second.use != use) throw Failure(ErrorNumber::kBadChannel);
  return found->second;
}

void FileChannels::Write(int channel, std::string_view text) {
  File& file = FileOn(channel, Use::kOutput);
  file.flushed = false;
  if (!file.stored->Write(text)) throw Failure(ErrorNumber::kWriteFailed);
}

void FileChannels::Flush(int channel) {
  if (!FileOn(channel, Use::kOutput).Flush()) throw Failure(ErrorNumber::kWriteFailed);
}

std::string_view FileChannels::ReadText(int channel) {
  File& file = FileOn(channel, Use::kInput);
  try {
    return file.TakeItem();
  } catch (const std::bad_alloc&) {  // a text that the memory does not hold
    throw Failure(ErrorNumber::kReadFailed);
  }
}

std::int16_t FileChannels::ReadNumber16(int channel) {
  return Narrow<std::int16_t>(DecimalValue(ReadText(channel)));
}

std::int32_t FileChannels::ReadNumber32(int channel) {
  return Narrow<std::int32_t>(DecimalValue(ReadText(channel)));
}

}  // namespace quilla
