#include "platform/file_channels.h"

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
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kBlockSize = 0x40000;

constexpr auto kFindQuote = [](std::string_view text) { return text.find(kQuote); };
constexpr auto kFindDelimiter = [](std::string_view text) {
  return text.find_first_of(kDelimiters);
};

template <typename Number>
Number Narrow(std::int64_t value) {
  if (value < std::numeric_limits<Number>::min() || value > std::numeric_limits<Number>::max()) {
    throw Failure(ErrorNumber::kOverflow);
  }
  return static_cast<Number>(value);
}

}  // namespace

void FileItem::AppendTo(std::string& line) const {
  if (const auto* const number = std::get_if<std::int64_t>(&value_)) {
    line += std::to_string(*number);
  } else {
    line += kQuote;
    line += std::get<std::string_view>(value_);
    line += kQuote;
  }
}

void AppendLine(std::string& text, std::initializer_list<FileItem> items) {
  const std::size_t line_start = text.size();
  for (const FileItem& item : items) {
    if (text.size() > line_start) text += kComma;
    item.AppendTo(text);
  }
  text += kLineEnd;
}

bool FileChannels::File::Flush() {
  if (!flushed) flushed = stored->Flush();
  return flushed;
}

void FileChannels::File::ReadBlock() {
  read.resize(kBlockSize);
  const std::optional<std::size_t> size = stored->Read(read.data(), kBlockSize);
  if (!size) throw Failure(ErrorNumber::kReadFailed);
  read.resize(*size);
  taken = 0;
}

bool FileChannels::File::AtEnd() {
  if (!IsInBlock()) ReadBlock();
  return !IsInBlock();
}

bool FileChannels::File::TakeIf(char c) {
  if (AtEnd() || read[taken] != c) return false;
  ++taken;
  return true;
}

template <typename Find>
std::string_view FileChannels::File::TakeFromBlock(const Find& find) {
  std::string_view text = read;
  text.remove_prefix(taken);
  text = text.substr(0, find(text));
  taken += text.size();
  return text;
}

template <typename Find>
std::string FileChannels::File::TakeUntil(const Find& find) {
  std::string text(TakeFromBlock(find));
  while (!IsInBlock() && !AtEnd()) text += TakeFromBlock(find);
  return text;
}

std::string FileChannels::File::TakeItem() {
  if (AtEnd()) throw Failure(ErrorNumber::kPastEndOfFile);
  const bool quoted = TakeIf(kQuote);
  std::string item = quoted ? TakeUntil(kFindQuote) : TakeUntil(kFindDelimiter);
  if (quoted) TakeIf(kQuote);
  if (TakeIf(kComma)) return item;
  TakeIf('\r');
  TakeIf('\n');
  return item;
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

std::string FileChannels::ReadText(int channel) {
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
