#include "platform/file_channels.h"

#include <filesystem>
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

bool FileChannels::File::Open(const std::string& path, std::ios::openmode mode) {
  const std::filesystem::path file(std::u8string(path.begin(), path.end()));
  return buffer_.open(file, mode | std::ios::binary) != nullptr;
}

bool FileChannels::File::Close() {
  const bool written = WriteBlock();
  return buffer_.close() != nullptr && written;
}

bool FileChannels::File::Flush() { return WriteBlock() && buffer_.pubsync() == 0; }

bool FileChannels::File::WriteLine(std::initializer_list<FileItem> items) {
  const std::size_t line_start = written_.size();
  for (const FileItem& item : items) {
    if (written_.size() > line_start) written_ += kComma;
    item.AppendTo(written_);
  }
  written_ += kLineEnd;
  return written_.size() < kBlockSize || WriteBlock();
}

bool FileChannels::File::WriteBlock() {
  const auto size = static_cast<std::streamsize>(written_.size());
  const bool written = buffer_.sputn(written_.data(), size) == size;
  written_.clear();
  return written;
}

void FileChannels::File::ReadBlock() {
  read_.resize(kBlockSize);
  const std::streamsize size = buffer_.sgetn(read_.data(), kBlockSize);
  read_.resize(static_cast<std::size_t>(size));
  taken_ = 0;
}

bool FileChannels::File::AtEnd() {
  if (taken_ == read_.size()) ReadBlock();
  return taken_ == read_.size();
}

bool FileChannels::File::TakeIf(char c) {
  if (AtEnd() || read_[taken_] != c) return false;
  ++taken_;
  return true;
}

template <typename Find>
std::string FileChannels::File::TakeUntil(const Find& find) {
  std::string text;
  while (!AtEnd()) {
    std::string_view ahead = read_;
    ahead.remove_prefix(taken_);
    const std::size_t end = find(ahead);
    text += ahead.substr(0, end);
    if (end != std::string_view::npos) {
      taken_ += end;
      break;
    }
    taken_ = read_.size();
  }
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
  Open(channel, path, std::ios::out | std::ios::trunc);
}

void FileChannels::OpenInput(int channel, const std::string& path) {
  Open(channel, path, std::ios::in);
}

void FileChannels::Open(int channel, const std::string& path, std::ios::openmode mode) {
  if (IsOpen(channel)) throw Failure(ErrorNumber::kChannelOpen);
  File file;
  if (!file.Open(path, mode)) throw Failure(ErrorNumber::kFileNotFound);
  files_.emplace(channel, std::move(file));
}

void FileChannels::Close(int channel) {
  const auto found = files_.find(channel);
  if (found == files_.end()) return;
  File file = std::move(found->second);
  files_.erase(found);
  if (!file.Close()) throw Failure(ErrorNumber::kWriteFailed);
}

void FileChannels::Abandon(int channel) {
  const auto found = files_.find(channel);
  if (found == files_.end()) return;
  found->second.Close();
  files_.erase(found);
}

FileChannels::File& FileChannels::FileOn(int channel) {
  const auto found = files_.find(channel);
  if (found == files_.end()) throw Failure(ErrorNumber::kBadChannel);
  return found->second;
}

void FileChannels::WriteLine(int channel, std::initializer_list<FileItem> items) {
  if (!FileOn(channel).WriteLine(items)) throw Failure(ErrorNumber::kWriteFailed);
}

void FileChannels::Flush(int channel) {
  if (!FileOn(channel).Flush()) throw Failure(ErrorNumber::kWriteFailed);
}

std::string FileChannels::ReadText(int channel) {
  File& file = FileOn(channel);
  try {
    return file.TakeItem();
  } catch (const std::ios_base::failure&) {  // a folder, or a disk that does not read
    throw Failure(ErrorNumber::kReadFailed);
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
