#include "system/disk_storage.h"

#include <fcntl.h>
#include <sys/stat.h>
#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

namespace quilla {
namespace {

namespace fs = std::filesystem;

constexpr int kNone = -1;
constexpr fs::perms kOwnersAlone = fs::perms::owner_read | fs::perms::owner_write;

fs::path PathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

std::string TextOf(const fs::path& path) {
  const std::u8string utf8 = path.u8string();
  return {utf8.begin(), utf8.end()};
}

// The few calls that the systems name differently.
#ifdef _WIN32

constexpr int kReads = _O_RDONLY | _O_BINARY | _O_NOINHERIT;
constexpr int kWrites = _O_WRONLY | _O_BINARY | _O_NOINHERIT | _O_CREAT;
constexpr int kNewOnly = _O_EXCL;

int OpenFile(const fs::path& path, int flags, bool /*owner_alone*/) {
  return _wopen(path.c_str(), flags, _S_IREAD | _S_IWRITE);
}
bool IsRegular(int file) {
  struct _stat64 status {};
  return _fstat64(file, &status) == 0 && (status.st_mode & _S_IFMT) == _S_IFREG;
}
auto ReadSome(int file, char* to, std::size_t size) {
  return _read(file, to, static_cast<unsigned>(size));
}
auto WriteSome(int file, const char* from, std::size_t size) {
  return _write(file, from, static_cast<unsigned>(size));
}
bool EmptyFile(int file) { return _chsize(file, 0) == 0; }
bool FlushFile(int file) { return _commit(file) == 0; }
bool CloseFile(int file) { return _close(file) == 0; }
void FlushFolder(const fs::path& /*folder*/) {}  // names are written with their files

#else

// Without O_NONBLOCK a named pipe would be waited for until somebody opens its other end.
constexpr int kReads = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
constexpr int kWrites = O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | O_CREAT;
constexpr int kNewOnly = O_EXCL;

int OpenFile(const fs::path& path, int flags, bool owner_alone) {
  return open(path.c_str(), flags, owner_alone ? 0600 : 0666);
}
bool IsRegular(int file) {
  struct stat status {};
  return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}
auto ReadSome(int file, char* to, std::size_t size) { return read(file, to, size); }
auto WriteSome(int file, const char* from, std::size_t size) { return write(file, from, size); }
bool EmptyFile(int file) { return ftruncate(file, 0) == 0; }
// A file system that cannot flush says so by EINVAL or ENOTSUP, and has then done what it can.
bool FlushFile(int file) { return fsync(file) == 0 || errno == EINVAL || errno == ENOTSUP; }
bool CloseFile(int file) { return close(file) == 0; }
void FlushFolder(const fs::path& folder) {
  const int file = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (file == kNone) return;
  fsync(file);
  close(file);
}

#endif

class DiskFile final : public StoredFile {
 public:
  /// `folder` is that of a new file, else nothing.
  DiskFile(int file, std::optional<fs::path> folder) : file_(file), folder_(std::move(folder)) {}
  DiskFile(const DiskFile&) = delete;
  DiskFile& operator=(const DiskFile&) = delete;
  ~DiskFile() override { Close(); }

  std::optional<std::size_t> Read(char* to, std::size_t size) override {
    std::size_t done = 0;
    while (done < size) {
      const auto some = ReadSome(file_, to + done, std::min(size - done, kMostAtOnce));
      if (some == 0) break;
      if (some > 0) done += static_cast<std::size_t>(some);
      if (some < 0 && errno != EINTR) return std::nullopt;
    }
    return done;
  }
  bool Empty() override { return EmptyFile(file_); }
  bool Write(std::string_view bytes) override {
    while (!bytes.empty()) {
      const auto some = WriteSome(file_, bytes.data(), std::min(bytes.size(), kMostAtOnce));
      if (some > 0) bytes.remove_prefix(static_cast<std::size_t>(some));
      if (some == 0 || (some < 0 && errno != EINTR)) return false;
    }
    return true;
  }
  bool Flush() override {
    if (!FlushFile(file_)) return false;
    if (folder_) FlushFolder(*folder_);
    return true;
  }
  bool Close() override {
    const int file = std::exchange(file_, kNone);
    return file == kNone || CloseFile(file);
  }

 private:
  static constexpr std::size_t kMostAtOnce = 0x100000;

  int file_;
  std::optional<fs::path> folder_;
};

Storage::File Open(const std::string& path, int flags, bool owner_alone = false) {
  const fs::path name = PathOf(path);
  std::error_code ignored;
  // A device may act on being opened: look first, and again at what was opened.
  const fs::file_status before = fs::status(name, ignored);
  if (fs::exists(before) && !fs::is_regular_file(before)) return nullptr;
  const int file = OpenFile(name, flags, owner_alone);
  if (file == kNone) return nullptr;
  auto opened = std::make_unique<DiskFile>(
      file, fs::exists(before) ? std::nullopt : std::optional(name.parent_path()));
  return IsRegular(file) ? std::move(opened) : nullptr;
}

/// The value of an environment variable; empty where it is not set.
fs::path Environment(const char* name) {
  const char* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
  return value == nullptr ? fs::path() : fs::path(value);
}

fs::path StateHome() {
#ifdef _WIN32
  return Environment("LOCALAPPDATA");
#else
  if (fs::path state = Environment("XDG_STATE_HOME"); state.is_absolute()) return state;
  const fs::path home = Environment("HOME");
  return home.is_absolute() ? home / ".local" / "state" : fs::path();
#endif
}

}  // namespace

Storage::File DiskStorage::OpenInput(const std::string& path) { return Open(path, kReads); }

Storage::File DiskStorage::OpenOutput(const std::string& path) { return Open(path, kWrites); }

Storage::File DiskStorage::Create(const std::string& path, const std::string& like) {
  File file = Open(path, kWrites | kNewOnly, true);
  std::error_code failure;
  const fs::perms permissions = fs::status(PathOf(like), failure).permissions();
  if (file != nullptr && !failure) {
    fs::permissions(PathOf(path), (permissions & fs::perms::all) | kOwnersAlone, failure);
  }
  return file;
}

bool DiskStorage::Rename(const std::string& from, const std::string& to) {
  std::error_code failure;
  fs::rename(PathOf(from), PathOf(to), failure);
  if (failure) return false;
  FlushFolder(PathOf(to).parent_path());
  return true;
}

bool DiskStorage::Remove(const std::string& path) {
  std::error_code failure;
  return fs::remove(PathOf(path), failure);
}

bool DiskStorage::Exists(const std::string& path) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(PathOf(path), ignored));
}

std::string DiskStorage::Resolve(const std::string& path) {
  std::error_code failure;
  fs::path file = fs::canonical(PathOf(path), failure);
  if (failure) file = fs::absolute(PathOf(path), failure);
  return failure ? path : TextOf(file);
}

std::string DiskStorage::StateFolder() {
  const fs::path home = StateHome();
  if (home.empty()) return {};
  const fs::path folder = home / "quilla";
  std::error_code failure;
  fs::create_directories(folder, failure);
  return failure ? std::string() : TextOf(folder);
}

}  // namespace quilla
