// Message boxes and file dialogs of the desktop.
#ifndef QUILLA_WINDOW_QT_DIALOGS_H_
#define QUILLA_WINDOW_QT_DIALOGS_H_

#include <QString>

#include "platform/dialogs.h"

class QFileDialog;

namespace quilla {

class QtMessageBoxes : public MessageBoxes {
 public:
  BoxAnswer Show(BoxIcon icon, const std::string& text, BoxButtons buttons) override;
};

class QtFileDialogs : public FileDialogs {
 public:
  QtFileDialogs();
  std::optional<std::string> Choose(const FileDialogRequest& request) override;

 private:
  QString folder_;  // where the last file was chosen
};

/// Gives a file dialog, before it opens, the width that its list of files takes.
void MakeRoomForColumns(QFileDialog& dialog);

/// Fills a name into a dialog that saves, so that typing replaces what is before its ending.
void FillIn(QFileDialog& dialog, const QString& name);

/// A filter such as "Hex Files(*.hex)|*.hex" in the form that Qt takes: "Hex Files (*.hex)".
QString QtFilter(const std::string& filter);

}  // namespace quilla

#endif  // QUILLA_WINDOW_QT_DIALOGS_H_
