// The disk as an abstract class: what file channels and rescue files need of it. Paths are in
// UTF-8.
#ifndef QUILLA_PLATFORM_STORAGE_H_
#define QUILLA_PLATFORM_STORAGE_H_

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quilla {

/// A file that is open, from its start on. It is closed, whatever becomes of it, when it goes.
class StoredFile {
 public:
  virtual ~StoredFile() = default;
  /// Reads up to `size` bytes and gives how many there were, fewer only at the end of the file.
  /// Nothing where the disk refuses.
  virtual std::optional<std::size_t> Read(char* to, std::size_t size) = 0;
  /// Drops all that the file holds. Like all below, false where the disk refuses.
  virtual bool Empty() = 0;
  virtual bool Write(std::string_view bytes) = 0;
  /// Waits until all that was written, and the name of a new file, would outlast a loss of power.
  virtual bool Flush() = 0;
  virtual bool Close() = 0;
};

class Storage {
 public:
  using File = std::unique_ptr<StoredFile>;

  virtual ~Storage() = default;
  /// Opens a file for reading. Null where that is not possible, as are the next two; what is no
  /// regular file, such as a folder, a device or a named pipe, is never opened, nor waited for.
  virtual File OpenInput(const std::string& path) = 0;
  /// Opens a file for writing and keeps what it holds; makes one where there is none.
  virtual File OpenOutput(const std::string& path) = 0;
  /// Makes a file where nothing has that name yet. It may be read and written by whoever may read
  /// and write the file `like`, or by its owner alone where that is not there.
  virtual File Create(const std::string& path, const std::string& like) = 0;
  /// Gives a file another name. False where that is not possible, as is Remove.
  virtual bool Rename(const std::string& from, const std::string& to) = 0;
  virtual bool Remove(const std::string& path) = 0;
  /// Whether anything has that name.
  virtual bool Exists(const std::string& path) = 0;
  /// The path of the file itself, where `path` may lead to it by symbolic links.
  virtual std::string Resolve(const std::string& path) = 0;
  /// The folder for what a program keeps of its user, made if need be; empty if there is none.
  virtual std::string StateFolder() = 0;
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_STORAGE_H_
