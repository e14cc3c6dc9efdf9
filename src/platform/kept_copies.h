// The copies that are kept of files while their content is replaced, so that a save that fails, or
// that the program does not outlive, costs nobody what was there. A copy bears the file's name with
// "~" behind it, or with as many as make it a new name.
#ifndef QUILLA_PLATFORM_KEPT_COPIES_H_
#define QUILLA_PLATFORM_KEPT_COPIES_H_

#include <map>
#include <set>
#include <string>

#include "platform/storage.h"

namespace quilla {

class KeptCopies {
 public:
  explicit KeptCopies(Storage& storage) : storage_(storage) {}

  /// Opens a file for output and empties it; what it held is in a copy then, on the disk. Where
  /// there is no room for a copy the file itself gets the copy's name, and a new file its own.
  /// Null, with all as it was, where the file cannot be opened or nothing can be kept of it.
  Storage::File Replace(const std::string& path);
  /// The new content is on the disk: the copy goes. It stays where the file could not be read
  /// before, since nobody has seen what it holds, and where it was asked to stay.
  void Release(const std::string& path);
  /// Told of files that could be read, and of those that could not.
  void NoteReading(const std::string& path, bool could_be_read);
  /// The copy stays when the file is written anew the next time.
  void Retain(const std::string& path) { NoteReading(path, false); }

 private:
  struct Copy {
    std::string path;
    bool is_the_file = false;  // renamed, for want of room
  };

  /// Whether a failed save has left a copy, which holds what the file should.
  bool HasCopy(const std::string& file);
  /// Makes a copy of a file.
  bool Keep(const std::string& file);
  bool CopyTo(const std::string& copy, const std::string& file);
  /// Takes back what Keep has done.
  void TakeBack(const std::string& file);

  Storage& storage_;
  std::map<std::string, Copy> copies_;  // by the path of the file itself
  std::set<std::string> unreadable_;
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_KEPT_COPIES_H_
