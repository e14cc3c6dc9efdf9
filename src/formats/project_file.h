// The project file: the commands that save and open it.
#ifndef QUILLA_FORMATS_PROJECT_FILE_H_
#define QUILLA_FORMATS_PROJECT_FILE_H_

#include <string>

#include "entry/new_file.h"
#include "formats/rescue_file.h"
#include "platform/dialogs.h"
#include "program/rows.h"
#include "program/session.h"
#include "program/state_machine.h"
#include "symbols/origins.h"

namespace quilla {

class ProjectFile {
 public:
  ProjectFile(Session& session, StateMachine& states, Rows& rows, Origins& origins,
              NewFileCommand& new_file, RescueFile& rescue);

  /// Saves under the name of the session, or asks for one if it has none. Failures are told to
  /// the user; `FileChanged` tells whether the save came about.
  void SaveFile_Click();
  void SaveAsFile_Click();
  /// Offers to save unsaved changes, asks for a file and opens it.
  void OpenFile_Click();
  /// Replaces the session by the file that `ProjectPath` names. A file that cannot be read is
  /// told to the user and leaves an empty session.
  void Open_File();

 private:
  /// Asks for the name of the file. Fails with `kDialogCancelled`, or with `kOutsideList` where the
  /// name is too short.
  void AskForName();
  void WriteProject();
  void ReadProject();
  void ReadStrings(TextList& names, TextList& equivalents);
  /// The file that the work in the table comes from; empty if it comes from none.
  std::string Source() const;
  /// What both saves do once the file is written; the work came from the file `source`.
  void SaveDone(const std::string& source);
  void SaveFailed();

  Session& session_;
  StateMachine& states_;
  Rows& rows_;
  Origins& origins_;
  NewFileCommand& new_file_;
  RescueFile& rescue_;
  std::string opened_;  // the file that was opened last, if it could be read
  CommonDialog FileDialog_{session_.outside.file_dialogs};
};

}  // namespace quilla

#endif  // QUILLA_FORMATS_PROJECT_FILE_H_
