#include "formats/rescue_file.h"

#include <iostream>
#include <string_view>

#include "formats/project_text.h"
#include "platform/failure.h"

namespace quilla {
namespace {

constexpr std::string_view kRescue = ".rescue";
constexpr int kMostRescues = 99;

std::string Rescue(const std::string& name) { return name + std::string(kRescue); }

}  // namespace

// A number may stand behind.
std::string RescuedName(const std::string& name) {
  const std::string_view all = name;
  const std::string_view unnumbered = all.substr(0, all.find_last_not_of("0123456789") + 1);
  if (!unnumbered.ends_with(kRescue)) return name;
  return std::string(unnumbered.substr(0, unnumbered.size() - kRescue.size()));
}

void RescueFile::Write() {
  if (!session_.FileChanged) return;
  bool done = false;
  try {
    done = Trapped([this] { return WriteText(ProjectText(session_)); });
  } catch (const Failure&) {
  }
  if (done) {
    std::cerr << "Quilla: unsaved work is in " << path_ << std::endl;
  } else {
    std::cerr << "Quilla: unsaved work could not be written to a rescue file" << std::endl;
  }
}

bool RescueFile::WriteText(const std::string& text) {
  const bool has_file =
      session_.FileOrigin == FileOrigin::kOpened || session_.FileOrigin == FileOrigin::kSaved;
  Storage& storage = session_.outside.storage;
  if (has_file && WriteAs(storage.Resolve(session_.ProjectPath), text)) return true;
  const std::string folder = storage.StateFolder();
  return !folder.empty() && WriteAs(folder + '/' + session_.FileName, text);
}

bool RescueFile::WriteAs(const std::string& name, const std::string& text) {
  Storage& storage = session_.outside.storage;
  for (int number = 1; number <= kMostRescues; ++number) {
    const std::string path = Rescue(name) + (number == 1 ? "" : std::to_string(number));
    const Storage::File file = storage.Create(path, name);
    if (file == nullptr && storage.Exists(path)) continue;
    if (file == nullptr) return false;
    path_ = path;
    if (file->Write(text) && file->Flush() && file->Close()) return true;
    Remove();
    return false;
  }
  return false;
}

void RescueFile::Remove() {
  if (!path_.empty()) session_.outside.storage.Remove(path_);
  path_.clear();
}

void RescueFile::ProjectSaved(const std::string& opened_from) {
  Remove();
  Storage& storage = session_.outside.storage;
  storage.Remove(Rescue(storage.Resolve(session_.ProjectPath)));
  if (RescuedName(opened_from) != opened_from && opened_from != session_.ProjectPath) {
    storage.Remove(opened_from);
  }
}

}  // namespace quilla
