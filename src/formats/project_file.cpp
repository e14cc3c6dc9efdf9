#include "formats/project_file.h"

#include <cstddef>
#include <string>

#include "formats/project_text.h"
#include "platform/characters.h"
#include "platform/failure.h"
#include "program/offer_to_save.h"

namespace quilla {
namespace {

constexpr int kChannel = 3;
constexpr const char* kProjectFilter = "Brelvanor Assembler Files (*.baf)|*.baf";
constexpr const char* kExtension = ".baf";
constexpr std::size_t kExtensionLength = 4;

/// The path with its last four characters replaced by the extension, whatever they are. Fails
/// with `kOutsideList` for a shorter path.
std::string WithExtension(const std::string& path) {
  auto characters = SplitCharacters(path);
  if (characters.size() < kExtensionLength) throw Failure(ErrorNumber::kOutsideList);
  characters.resize(characters.size() - kExtensionLength);
  std::string result;
  for (const std::string& character : characters) result += character;
  return result + kExtension;
}

}  // namespace

ProjectFile::ProjectFile(Session& session, StateMachine& states, Rows& rows, Origins& origins,
                         NewFileCommand& new_file, RescueFile& rescue)
    : session_(session),
      states_(states),
      rows_(rows),
      origins_(origins),
      new_file_(new_file),
      rescue_(rescue) {
  session_.menu.SaveFile.Click = [this] { SaveFile_Click(); };
  session_.menu.SaveAsFile.Click = [this] { SaveAsFile_Click(); };
  session_.menu.OpenFile.Click = [this] { OpenFile_Click(); };
}

void ProjectFile::SaveFile_Click() {
  if (session_.FileOrigin == FileOrigin::kNew) {
    SaveAsFile_Click();
    return;
  }
  try {
    Trapped([this] {
      session_.SetTip("Saving file . . .");
      // The path is still that of the program before, which nobody has agreed to lose.
      if (session_.FileOrigin == FileOrigin::kDisassembled) {
        session_.channels.RetainCopy(session_.ProjectPath);
      }
      WriteProject();
      SaveDone(Source());
    });
  } catch (const Failure&) {
    SaveFailed();
  }
}

void ProjectFile::SaveAsFile_Click() {
  try {
    Trapped([this] {
      const std::string source = Source();
      AskForName();
      session_.SetTip("Saving file . . .");
      session_.ProgrammingPanel.set_pointer(FormPointer::kBusy);
      WriteProject();
      SaveDone(source);
    });
  } catch (const Failure& failure) {
    if (failure.number() == ErrorNumber::kDialogCancelled) {
      states_.ReturnToReady();
    } else {
      SaveFailed();
    }
  }
  session_.ProgrammingPanel.set_pointer(FormPointer::kNormal);
}

void ProjectFile::AskForName() {
  FileDialog_.Flags = kOverwritePrompt | kHideReadOnly | kPathMustExist | kFileMustExist;
  FileDialog_.Filter = kProjectFilter;
  FileDialog_.DialogTitle = "Save As";
  FileDialog_.Name = NameWithExtension(RescuedName(session_.FileName), kExtension);
  FileDialog_.Target = WithExtension;
  FileDialog_.ShowSave();
  session_.ProjectPath = FileDialog_.FileName;
  session_.FileName = FileDialog_.FileTitle;
  session_.ProjectPath = WithExtension(session_.ProjectPath);
}

std::string ProjectFile::Source() const {
  const bool is_of_file =
      session_.FileOrigin == FileOrigin::kOpened || session_.FileOrigin == FileOrigin::kSaved;
  return is_of_file && session_.ProjectPath == opened_ ? opened_ : std::string();
}

void ProjectFile::SaveDone(const std::string& source) {
  rescue_.ProjectSaved(source);
  session_.ProgrammingPanel.set_caption(kTitle + session_.FileName);
  states_.ReturnToReady();
  session_.SetTip("File Saved.");
  session_.FileOrigin = FileOrigin::kSaved;
  session_.FileChanged = false;
}

void ProjectFile::SaveFailed() {
  session_.channels.Abandon(kChannel);
  session_.ShowCritical("Unable to save file.");
  states_.ReturnToReady();
}

void ProjectFile::WriteProject() {
  const std::string text = ProjectText(session_);
  session_.channels.OpenOutput(kChannel, session_.ProjectPath);
  Grid& table = session_.Table1;
  for (int row = 0; row < table.Rows(); ++row) {
    if (!session_.IsOrigin(row)) table.SetTextMatrix(row, kAddressColumn, {});
  }
  session_.channels.Write(kChannel, text);
  session_.channels.Close(kChannel);
}

void ProjectFile::OpenFile_Click() {
  if (!OfferToSave(session_)) return;
  try {
    FileDialog_.Flags = kHideReadOnly | kPathMustExist | kFileMustExist;
    FileDialog_.Filter = kProjectFilter;
    FileDialog_.DialogTitle = "Open";
    FileDialog_.ShowOpen();
  } catch (const Failure& failure) {
    if (failure.number() == ErrorNumber::kDialogCancelled) return;
    session_.ShowCritical("Unable to open file.");
    new_file_.New_File();
    return;
  }
  session_.ProjectPath = FileDialog_.FileName;
  session_.FileName = FileDialog_.FileTitle;
  session_.ProgrammingPanel.set_pointer(FormPointer::kBusy);
  Open_File();
  session_.FileOrigin = FileOrigin::kOpened;
  session_.FileChanged = false;
}

void ProjectFile::Open_File() {
  opened_.clear();
  new_file_.New_File();
  session_.SetTip("Opening file . . .");
  try {
    Trapped([this] {
      ReadProject();
      session_.channels.Close(kChannel);
      origins_.UpdateOrigins();
      session_.ProgrammingPanel.set_caption(kTitle + session_.FileName);
      session_.SetWriteMode(false);
      rows_.NextLine(1);
      states_.ControlTransfer(PanelState::kReady);
      session_.SetTip("File Opened.");
      opened_ = session_.ProjectPath;
    });
  } catch (const Failure&) {
    session_.ProgrammingPanel.set_pointer(FormPointer::kNormal);
    session_.ShowCritical("Unable to open file.");
    new_file_.New_File();
    session_.channels.Abandon(kChannel);
    states_.ReturnToReady();
  }
  session_.ProgrammingPanel.set_pointer(FormPointer::kNormal);
}

void ProjectFile::ReadProject() {
  FileChannels& file = session_.channels;
  file.OpenInput(kChannel, session_.ProjectPath);
  file.ReadText(kChannel);  // the warning
  if (file.ReadText(kChannel) != kFormatTag) throw Failure(ErrorNumber::kReadFailed);
  const int rows = file.ReadNumber32(kChannel);
  session_.Table1.Clear();
  session_.StringTable.Clear();
  rows_.SetRows(rows);
  for (int row = 0; row < session_.Table1.Rows(); ++row) {
    for (int column = 0; column < kProgramColumns; ++column) {
      session_.Table1.SetTextMatrix(row, column, file.ReadText(kChannel));
    }
    session_.StringTable.SetTextMatrix(row, 0, file.ReadText(kChannel));
  }
  file.ReadText(kChannel);  // the end of the table
  ReadStrings(session_.LabelCombo, session_.LabelEqtList);
  ReadStrings(session_.XXCombo, session_.XXEqtList);
  file.ReadText(kChannel);  // the end of the file
}

void ProjectFile::ReadStrings(TextList& names, TextList& equivalents) {
  const int count = session_.channels.ReadNumber16(kChannel);
  for (int i = 0; i < count; ++i) {
    names.Set(i, std::string(session_.channels.ReadText(kChannel)));
    equivalents.Set(i, std::string(session_.channels.ReadText(kChannel)));
  }
}

}  // namespace quilla
