// What the system asks the user outside its own windows: message boxes and file dialogs.
#ifndef QUILLA_PLATFORM_DIALOGS_H_
#define QUILLA_PLATFORM_DIALOGS_H_

#include <functional>
#include <optional>
#include <string>

namespace quilla {

enum class BoxIcon { kCritical, kInformation, kQuestion };
enum class BoxButtons { kOk, kOkCancel, kYesNo, kYesNoCancel };
/// The button that closed a box, with its code.
enum class BoxAnswer : int { kOk = 1, kCancel = 2, kYes = 6, kNo = 7 };

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  /// Shows a box and waits for its answer, which is one of its buttons.
  virtual BoxAnswer Show(BoxIcon icon, const std::string& text, BoxButtons buttons) = 0;
};

/// What a file dialog is asked to do; any combination.
enum FileDialogFlag : unsigned {
  kOverwritePrompt = 0x0002,
  kHideReadOnly = 0x0004,
  kPathMustExist = 0x0800,
  kFileMustExist = 0x1000,
};

enum class FileDialogKind { kOpen, kSave };

struct FileDialogRequest {
  FileDialogKind kind;
  std::string title;
  std::string filter;  // "Name(*.ext)|*.ext"
  unsigned flags;      // FileDialogFlag values
  /// The name that is filled in at first, without a folder.
  std::string name = {};
  /// The file that is written for a path that is chosen; the path itself where there is none.
  std::function<std::string(const std::string& path)> target = {};
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;
  /// Lets the user choose a file; gives its path in UTF-8, or nothing for a cancel. Whether a file
  /// may be replaced is asked of the target of the path; fails as that does.
  virtual std::optional<std::string> Choose(const FileDialogRequest& request) = 0;
};

/// The name with this extension in the place of its own, if it has one.
std::string NameWithExtension(const std::string& name, const std::string& extension);

/// A file dialog with its settings, which last from one use to the next.
class CommonDialog {
 public:
  explicit CommonDialog(FileDialogs& dialogs) : dialogs_(dialogs) {}

  unsigned Flags = 0;
  std::string Filter;
  std::string DialogTitle;
  /// What a dialog for saving begins with, and where it leads: see `FileDialogRequest`.
  std::string Name;
  std::function<std::string(const std::string& path)> Target;
  /// The path chosen last, and what follows its last separator.
  std::string FileName;
  std::string FileTitle;

  /// Both fail with `kDialogCancelled` when the user leaves without choosing.
  void ShowOpen() { Show(FileDialogKind::kOpen); }
  void ShowSave() { Show(FileDialogKind::kSave); }

 private:
  void Show(FileDialogKind kind);

  FileDialogs& dialogs_;
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_DIALOGS_H_
