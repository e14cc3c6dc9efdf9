#include "platform/kept_copies.h"

#include <optional>
#include <string_view>
#include <utility>

namespace quilla {

Storage::File KeptCopies::Replace(const std::string& path) {
  const std::string file = storage_.Resolve(path);
  const bool is_there = storage_.Exists(file);
  Storage::File output = storage_.OpenOutput(file);
  if (output == nullptr) return nullptr;
  const bool is_kept = !is_there || HasCopy(file);
  if (!is_kept) {
    output.reset();  // some systems rename no file that is open
    if (!Keep(file)) return nullptr;
    const Copy& copy = copies_.at(file);
    output = copy.is_the_file ? storage_.Create(file, copy.path) : storage_.OpenOutput(file);
  }
  if (output != nullptr && output->Empty()) return output;
  output.reset();
  if (!is_kept) TakeBack(file);
  return nullptr;
}

void KeptCopies::Release(const std::string& path) {
  const std::string file = storage_.Resolve(path);
  const auto kept = copies_.find(file);
  if (kept == copies_.end()) return;
  if (unreadable_.erase(file) == 0) storage_.Remove(kept->second.path);
  copies_.erase(kept);
}

void KeptCopies::NoteReading(const std::string& path, bool could_be_read) {
  const std::string file = storage_.Resolve(path);
  if (could_be_read) {
    unreadable_.erase(file);
  } else {
    unreadable_.insert(file);
  }
}

// The file has been written on since a failed save made the copy.
bool KeptCopies::HasCopy(const std::string& file) {
  const auto kept = copies_.find(file);
  return kept != copies_.end() && storage_.Exists(kept->second.path);
}

bool KeptCopies::Keep(const std::string& file) {
  std::string path = file + '~';
  while (storage_.Exists(path)) path += '~';
  Copy& copy = copies_[file];  // before anything is done that must not be forgotten
  copy = {std::move(path), false};
  if (CopyTo(copy.path, file)) return true;
  copy.is_the_file = storage_.Rename(file, copy.path);
  if (!copy.is_the_file) copies_.erase(file);
  return copies_.contains(file);
}

void KeptCopies::TakeBack(const std::string& file) {
  const Copy& copy = copies_.at(file);
  if (copy.is_the_file ? storage_.Rename(copy.path, file) : storage_.Remove(copy.path)) {
    copies_.erase(file);
  }
}

bool KeptCopies::CopyTo(const std::string& copy, const std::string& file) {
  constexpr std::size_t kBlockSize = 0x40000;
  std::string block(kBlockSize, '\0');
  const Storage::File from = storage_.OpenInput(file);
  const Storage::File to = from == nullptr ? nullptr : storage_.Create(copy, file);
  if (to == nullptr) return false;
  std::optional<std::size_t> size;
  bool done = true;
  do {
    size = from->Read(block.data(), block.size());
    const std::string_view content = block;
    done = size && to->Write(content.substr(0, *size));
  } while (done && *size > 0);
  done = done && to->Flush();
  done = to->Close() && done;
  if (!done) storage_.Remove(copy);
  return done;
}

}  // namespace quilla
