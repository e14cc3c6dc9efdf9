// Numbered file channels, and the sequential items that files are made of: texts in double quotes
// and decimal numbers, separated by commas and line ends. Nothing in a text is escaped.
#ifndef QUILLA_PLATFORM_FILE_CHANNELS_H_
#define QUILLA_PLATFORM_FILE_CHANNELS_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "platform/kept_copies.h"
#include "platform/storage.h"

namespace quilla {

/// What ends an item in a file: another one in the same line, or the line.
inline constexpr std::string_view kNextItem = ",";
inline constexpr std::string_view kLineEnd = "\r\n";

/// Adds an item to the text of a file, and what ends it.
void AppendText(std::string& file, std::string_view text, std::string_view end = kLineEnd);
void AppendNumber(std::string& file, std::int64_t number);

class FileChannels {
 public:
  explicit FileChannels(Storage& storage) : storage_(storage), copies_(storage) {}

  /// Opens a file, its path in UTF-8, for writing from the start or for reading. What a file held
  /// that is written anew is kept in a copy until it is written whole. Fails with `kChannelOpen` on
  /// a channel that is open and with `kFileNotFound` where the file cannot be opened, or not be
  /// kept; the channel is closed then and the file as it was.
  void OpenOutput(int channel, const std::string& path);
  void OpenInput(int channel, const std::string& path);
  /// The copy of this file stays when it is written anew the next time.
  void RetainCopy(const std::string& path) { copies_.Retain(path); }
  /// Closes the channel; nothing on a closed one. Fails with `kWriteFailed` when the disk did not
  /// take all that was written; the channel is closed even then.
  void Close(int channel);
  /// Closes the channel whatever has become of the file; for clean-ups after a failure.
  void Abandon(int channel);
  /// Brings what has been written so far to the disk. Fails as Write; the channel stays open.
  void Flush(int channel);
  bool IsOpen(int channel) const { return files_.contains(channel); }

  /// Writes a text as it stands. Fails with `kBadChannel` or `kWriteFailed`.
  void Write(int channel, std::string_view text);

  /// Reads the next item as it stands, without its quotes. A line ends at CR LF, CR or LF; a
  /// quote that is never closed takes the rest of the file. It holds until the next is read. Fails
  /// with `kPastEndOfFile`, `kReadFailed` or `kBadChannel`.
  std::string_view ReadText(int channel);
  /// Reads the next item as a decimal number. Fails as ReadText does, with `kNotANumber`, and
  /// with `kOverflow` for a number that 16 or 32 bits do not hold.
  std::int16_t ReadNumber16(int channel);
  std::int32_t ReadNumber32(int channel);

 private:
  enum class Use { kInput, kOutput };

  /// A file that is open. It is read in great blocks.
  struct File {
    Storage::File stored;
    std::string path;
    Use use;
    bool flushed = false;   // all that was written is on the disk
    std::string read = {};  // what was read last, as much of it as is not taken at least
    std::size_t taken = 0;  // how much of it has been taken
    bool at_end = false;    // there is no more to be read

    bool Flush();
    /// What has been read and not been taken.
    std::string_view Rest() const { return {read.data() + taken, read.size() - taken}; }
    /// Reads at least as much again behind the rest.
    void ReadMore();
    /// Takes the next item with its quotes and its delimiter, and gives what it holds.
    std::string_view TakeItem();
  };

  /// The file on a channel that is open for this use. Fails with `kBadChannel`.
  File& FileOn(int channel, Use use);
  void Open(int channel, const std::string& path, Use use);

  Storage& storage_;
  KeptCopies copies_;
  std::map<int, File> files_;
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_FILE_CHANNELS_H_
