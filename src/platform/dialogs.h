// What the system asks the user outside its own windows: message boxes and file dialogs.
#ifndef QUILLA_PLATFORM_DIALOGS_H_
#define QUILLA_PLATFORM_DIALOGS_H_

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
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;
  /// Lets the user choose a file; gives its path in UTF-8, or nothing for a cancel.
  virtual std::optional<std::string> Choose(const FileDialogRequest& request) = 0;
};

/// A file dialog with its settings, which last from one use to the next.
class CommonDialog {
 public:
  explicit CommonDialog(FileDialogs& dialogs) : dialogs_(dialogs) {}

  unsigned Flags = 0;
  std::string Filter;
  std::string DialogTitle;
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
