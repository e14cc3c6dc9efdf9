// The rescue file: a project file of unsaved work, written where the program ends without a user
// who could be asked. It stands beside the project, under its name with ".rescue" behind it; of a
// program without a file, in the state folder. No other rescue file is ever written over.
#ifndef QUILLA_FORMATS_RESCUE_FILE_H_
#define QUILLA_FORMATS_RESCUE_FILE_H_

#include <string>

#include "program/session.h"

namespace quilla {

/// The name of the project that a file of this name is the rescue file of; another name as it is.
std::string RescuedName(const std::string& name);

class RescueFile {
 public:
  explicit RescueFile(Session& session) : session_(session) {}

  /// Writes the unsaved work, if there is any, and tells on standard error where, or that it could
  /// not be written.
  void Write();
  /// Removes what was written: the work is safe, or the user has let it go.
  void Remove();
  /// Removes what is no longer needed once a project has been saved: what was written, the rescue
  /// file beside the project, and the one that the work was opened from, if it was.
  void ProjectSaved(const std::string& opened_from);

 private:
  bool WriteAs(const std::string& name, const std::string& text);
  /// Where the work belongs: the best place first.
  bool WriteText(const std::string& text);

  Session& session_;
  std::string path_;  // of what was written; empty if there is none
};

}  // namespace quilla

#endif  // QUILLA_FORMATS_RESCUE_FILE_H_
