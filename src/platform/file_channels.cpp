#include "platform/file_channels.h"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <utility>

#include "platform/failure.h"
#include "platform/number_text.h"

namespace quilla {
namespace {

constexpr char kQuote = '"';
constexpr char kComma = ',';
constexpr std::string_view kDelimiters = ",\r\n";
constexpr std::string_view kLineEnd = "\r\n";

template <typename Number>
Number Narrow(std::int64_t value) {
  if (value < std::numeric_limits<Number>::min() || value > std::numeric_limits<Number>::max()) {
    throw Failure(ErrorNumber::kOverflow);
  }
  return static_cast<Number>(value);
}

}  // namespace

void FileChannels::OpenOutput(int channel, const std::string& path) {
  Open(channel, path, std::ios::out | std::ios::trunc);
}

void FileChannels::OpenInput(int channel, const std::string& path) {
  Open(channel, path, std::ios::in);
}

void FileChannels::Open(int channel, const std::string& path, std::ios::openmode mode) {
  if (IsOpen(channel)) throw Failure(ErrorNumber::kChannelOpen);
  File file;
  if (file.open(std::filesystem::path(std::u8string(path.begin(), path.end())),
                mode | std::ios::binary) == nullptr) {
    throw Failure(ErrorNumber::kFileNotFound);
  }
  files_.emplace(channel, std::move(file));
}

void FileChannels::Close(int channel) {
  const auto found = files_.find(channel);
  if (found == files_.end()) return;
  File file = std::move(found->second);
  files_.erase(found);
  if (file.close() == nullptr) throw Failure(ErrorNumber::kWriteFailed);
}

FileChannels::File& FileChannels::FileOn(int channel) {
  const auto found = files_.find(channel);
  if (found == files_.end()) throw Failure(ErrorNumber::kBadChannel);
  return found->second;
}

void FileItem::AppendTo(std::string& line) const {
  if (const auto* const number = std::get_if<std::int64_t>(&value_)) {
    line += std::to_string(*number);
  } else {
    line += kQuote;
    line += std::get<std::string_view>(value_);
    line += kQuote;
  }
}

void FileChannels::WriteLine(int channel, std::initializer_list<FileItem> items) {
  File& file = FileOn(channel);
  line_.clear();
  for (const FileItem& item : items) {
    if (!line_.empty()) line_ += kComma;
    item.AppendTo(line_);
  }
  line_ += kLineEnd;
  const auto length = static_cast<std::streamsize>(line_.size());
  if (file.sputn(line_.data(), length) != length) throw Failure(ErrorNumber::kWriteFailed);
}

std::string_view FileChannels::File::Ahead() {
  if (gptr() == egptr()) underflow();
  return {gptr(), egptr()};
}

bool FileChannels::File::SkipIf(char c) {
  const std::string_view ahead = Ahead();
  if (ahead.empty() || ahead.front() != c) return false;
  Skip(1);
  return true;
}

template <typename Find>
std::string FileChannels::File::TakeUntil(const Find& find) {
  std::string taken;
  for (std::string_view ahead = Ahead(); !ahead.empty(); ahead = Ahead()) {
    const std::size_t end = std::min(find(ahead), ahead.size());
    taken.append(ahead, 0, end);
    Skip(end);
    if (end < ahead.size()) break;
  }
  return taken;
}

std::string FileChannels::File::TakeItem() {
  if (Ahead().empty()) throw Failure(ErrorNumber::kPastEndOfFile);
  std::string item;
  if (SkipIf(kQuote)) {
    item = TakeUntil([](std::string_view ahead) { return ahead.find(kQuote); });
    SkipIf(kQuote);
  } else {
    item = TakeUntil([](std::string_view ahead) { return ahead.find_first_of(kDelimiters); });
  }
  if (SkipIf(kComma)) return item;
  SkipIf('\r');
  SkipIf('\n');
  return item;
}

std::string FileChannels::ReadText(int channel) {
  File& file = FileOn(channel);
  try {
    return file.TakeItem();
  } catch (const std::ios_base::failure&) {  // a folder, or a disk that does not read
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
