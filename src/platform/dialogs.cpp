#include "platform/dialogs.h"

#include "platform/failure.h"

namespace quilla {

std::string NameWithExtension(const std::string& name, const std::string& extension) {
  return name.substr(0, name.find_last_of('.')) + extension;
}

void CommonDialog::Show(FileDialogKind kind) {
  const auto path = dialogs_.Choose({kind, DialogTitle, Filter, Flags, Name, Target});
  if (!path) throw Failure(ErrorNumber::kDialogCancelled);
  FileName = *path;
  const auto separator = FileName.find_last_of("/\\");
  FileTitle = separator == std::string::npos ? FileName : FileName.substr(separator + 1);
}

}  // namespace quilla
