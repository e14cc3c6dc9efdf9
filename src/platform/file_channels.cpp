#include "platform/file_channels.h"

#include <filesystem>
#include <limits>
#include <utility>

#include "platform/failure.h"
#include "platform/number_text.h"

namespace quilla {
namespace {

constexpr char kQuote = '"';
constexpr char kComma = ',';
constexpr int kEndOfFile = std::char_traits<char>::eof();

bool IsDelimiter(int c) { return c == kComma || c == '\r' || c == '\n'; }

/// Takes one comma or line end, if it stands there.
void SkipDelimiter(std::streambuf& buffer) {
  const int c = buffer.sgetc();
  if (!IsDelimiter(c)) return;
  buffer.sbumpc();
  if (c == '\r' && buffer.sgetc() == '\n') buffer.sbumpc();
}

std::string ReadItem(std::streambuf& buffer) {
  if (buffer.sgetc() == kEndOfFile) throw Failure(ErrorNumber::kPastEndOfFile);
  std::string item;
  const bool quoted = buffer.sgetc() == kQuote;
  if (quoted) buffer.sbumpc();
  for (int c = buffer.sgetc(); c != kEndOfFile; c = buffer.sgetc()) {
    if (quoted ? c == kQuote : IsDelimiter(c)) break;
    item.push_back(static_cast<char>(c));
    buffer.sbumpc();
  }
  if (quoted && buffer.sgetc() == kQuote) buffer.sbumpc();
  SkipDelimiter(buffer);
  return item;
}

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
  const std::filesystem::path file(std::u8string(path.begin(), path.end()));
  std::fstream stream(file, mode | std::ios::binary);
  if (!stream.is_open()) throw Failure(ErrorNumber::kFileNotFound);
  streams_.emplace(channel, std::move(stream));
}

void FileChannels::Close(int channel) {
  const auto found = streams_.find(channel);
  if (found == streams_.end()) return;
  std::fstream stream = std::move(found->second);
  streams_.erase(found);
  stream.close();
  if (!stream) throw Failure(ErrorNumber::kWriteFailed);
}

std::fstream& FileChannels::Stream(int channel) {
  const auto found = streams_.find(channel);
  if (found == streams_.end()) throw Failure(ErrorNumber::kBadChannel);
  return found->second;
}

void FileChannels::WriteLine(int channel, std::initializer_list<FileItem> items) {
  std::fstream& stream = Stream(channel);
  const char* separator = "";
  for (const FileItem& item : items) {
    stream << separator << item.form();
    separator = ",";
  }
  stream << "\r\n";
  if (!stream) throw Failure(ErrorNumber::kWriteFailed);
}

std::string FileChannels::ReadText(int channel) {
  std::streambuf& buffer = *Stream(channel).rdbuf();
  try {
    return ReadItem(buffer);
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
