// Numbered file channels, and the sequential items that files are made of: texts in double quotes
// and decimal numbers, separated by commas and line ends. Nothing in a text is escaped.
#ifndef QUILLA_PLATFORM_FILE_CHANNELS_H_
#define QUILLA_PLATFORM_FILE_CHANNELS_H_

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <variant>

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

class FileChannels {
 public:
  /// Opens a file, its path in UTF-8, for writing from the start or for reading. Fails with
  /// `kChannelOpen` on a channel that is open and with `kFileNotFound` where the file cannot be
  /// opened; the channel is closed then.
  void OpenOutput(int channel, const std::string& path);
  void OpenInput(int channel, const std::string& path);
  /// Closes the channel; nothing on a closed one. Fails with `kWriteFailed` when the disk did not
  /// take all that was written; the channel is closed even then.
  void Close(int channel);
  /// Closes the channel whatever has become of the file; for clean-ups after a failure.
  void Abandon(int channel);
  /// Brings what has been written so far to the disk. Fails as WriteLine; the channel stays open.
  void Flush(int channel);
  bool IsOpen(int channel) const { return files_.contains(channel); }

  /// Writes items on one line, with commas between them and CR LF behind.
  /// Fails with `kBadChannel` or `kWriteFailed`.
  void WriteLine(int channel, std::initializer_list<FileItem> items);

  /// Reads the next item as it stands, without its quotes. A line ends at CR LF, CR or LF; a
  /// quote that is never closed takes the rest of the file. Fails with `kPastEndOfFile`,
  /// `kReadFailed` or `kBadChannel`.
  std::string ReadText(int channel);
  /// Reads the next item as a decimal number. Fails as ReadText does, with `kNotANumber`, and
  /// with `kOverflow` for a number that 16 or 32 bits do not hold.
  std::int16_t ReadNumber16(int channel);
  std::int32_t ReadNumber32(int channel);

 private:
  /// A file that is read and written in great blocks.
  class File {
   public:
    /// False where the file cannot be opened.
    bool Open(const std::string& path, std::ios::openmode mode);
    /// Adds a line of items. False when the disk does not take what is written.
    bool WriteLine(std::initializer_list<FileItem> items);
    /// Writes what has been added since the last block. False as WriteLine.
    bool Flush();
    /// Takes the next item with its quotes and its delimiter, and gives what it holds.
    std::string TakeItem();
    /// Writes what has been added since the last block, and closes. False as WriteLine.
    bool Close();

   private:
    bool WriteBlock();
    void ReadBlock();
    bool AtEnd();
    /// Takes the next character if it is this one.
    bool TakeIf(char c);
    /// Takes the characters before the one that `find` finds, or all up to the end of the file.
    template <typename Find>
    std::string TakeUntil(const Find& find);

    std::filebuf buffer_;
    std::string written_;    // the block that is not on the disk yet
    std::string read_;       // the block that was read last
    std::size_t taken_ = 0;  // how much of it has been taken
  };

  File& FileOn(int channel);
  void Open(int channel, const std::string& path, std::ios::openmode mode);

  std::map<int, File> files_;
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_FILE_CHANNELS_H_
