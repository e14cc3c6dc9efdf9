#include "platform/dialogs.h"

#include "platform/failure.h"

namespace quilla {

void CommonDialog::Show(FileDialogKind kind) {
  const auto path = dialogs_.Choose({kind, DialogTitle, Filter, Flags});
  if (!path) throw Failure(ErrorNumber::kDialogCancelled);
  FileName = *path;
  const auto separator = FileName.find_last_of("/\\");
  FileTitle = separator == std::string::npos ? FileName : FileName.substr(separator + 1);
}

}  // namespace quilla
