// The disk of the operating system.
#ifndef QUILLA_SYSTEM_DISK_STORAGE_H_
#define QUILLA_SYSTEM_DISK_STORAGE_H_

#include "platform/storage.h"

namespace quilla {

class DiskStorage : public Storage {
 public:
  File OpenInput(const std::string& path) override;
  File OpenOutput(const std::string& path) override;
  File Create(const std::string& path, const std::string& like) override;
  bool Rename(const std::string& from, const std::string& to) override;
  bool Remove(const std::string& path) override;
  bool Exists(const std::string& path) override;
  std::string Resolve(const std::string& path) override;
  /// `quilla` in `$XDG_STATE_HOME`, by default `~/.local/state`; on Windows in `%LOCALAPPDATA%`.
  std::string StateFolder() override;
};

}  // namespace quilla

#endif  // QUILLA_SYSTEM_DISK_STORAGE_H_
