// Numbered file channels, and the sequential items that files are made of: texts in double quotes
// and decimal numbers, separated by commas and line ends. Nothing in a text is escaped.
#ifndef QUILLA_PLATFORM_FILE_CHANNELS_H_
#define QUILLA_PLATFORM_FILE_CHANNELS_H_

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <variant>

#include "platform/kept_copies.h"
#include "platform/storage.h"

namespace quilla {

/// One item to be written: a number, or a text that must outlive the item.
class FileItem {
 public:
  static FileItem Text(std::string_view text) { return FileItem(text); }
  static FileItem Number(std::int64_t number) { return FileItem(number); }
  /// Adds the item to a line in the form that it has in a file.
  void AppendTo(std::string& line) const;

 private:
  explicit FileItem(std::variant<std::string_view, std::int64_t> value) : value_(value) {}
  std::variant<std::string_view, std::int64_t> value_;
};

/// Adds items as one line of a file: commas between them, CR LF behind.
void AppendLine(std::string& text, std::initializer_list<FileItem> items);

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
  /// quote that is never closed takes the rest of the file. Fails with `kPastEndOfFile`,
  /// `kReadFailed` or `kBadChannel`.
  std::string ReadText(int channel);
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
    std::string read = {};  // the block that was read last
    std::size_t taken = 0;  // how much of it has been taken

    bool Flush();
    /// Takes the next item with its quotes and its delimiter, and gives what it holds.
    std::string TakeItem();
    void ReadBlock();
    bool IsInBlock() const { return taken < read.size(); }
    bool AtEnd();
    /// Takes the next character if it is this one.
    bool TakeIf(char c);
    /// Takes the characters before the one that `find` finds, or all up to the end of the block.
    template <typename Find>
    std::string_view TakeFromBlock(const Find& find);
    /// The same, or all up to the end of the file.
    template <typename Find>
    std::string TakeUntil(const Find& find);
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
