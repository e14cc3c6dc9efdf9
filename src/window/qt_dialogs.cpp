#include "window/qt_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "window/qt_text.h"

namespace quilla {
namespace {

constexpr const char* kTitle = "Quilla";

QMessageBox::Icon QtIcon(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::kCritical:
      return QMessageBox::Critical;
    case BoxIcon::kInformation:
      return QMessageBox::Information;
    case BoxIcon::kQuestion:
      return QMessageBox::Question;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons QtButtons(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::kOk:
      return QMessageBox::Ok;
    case BoxButtons::kOkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case BoxButtons::kYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::kYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

BoxAnswer AnswerOf(int qt_button) {
  switch (qt_button) {
    case QMessageBox::Yes:
      return BoxAnswer::kYes;
    case QMessageBox::No:
      return BoxAnswer::kNo;
    case QMessageBox::Cancel:
      return BoxAnswer::kCancel;
    default:
      return BoxAnswer::kOk;
  }
}

}  // namespace

BoxAnswer QtMessageBoxes::Show(BoxIcon icon, const std::string& text, BoxButtons buttons) {
  QMessageBox box(QtIcon(icon), kTitle, ToQt(text), QtButtons(buttons),
                  QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  return AnswerOf(box.exec());
}

QString QtFilter(const std::string& filter) {
  const QStringList parts = ToQt(filter).split('|');
  if (parts.size() < 2) return ToQt(filter);
  const QString name = parts[0].section('(', 0, 0).trimmed();
  return name + " (" + QString(parts[1]).replace(';', ' ') + ')';
}

std::optional<std::string> QtFileDialogs::Choose(const FileDialogRequest& request) {
  QFileDialog dialog(QApplication::activeWindow(), ToQt(request.title), folder_,
                     QtFilter(request.filter));
  const bool saves = request.kind == FileDialogKind::kSave;
  dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  const bool must_exist = !saves && (request.flags & kFileMustExist) != 0;
  dialog.setFileMode(must_exist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, (request.flags & kOverwritePrompt) == 0);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const QString path = dialog.selectedFiles().constFirst();
  folder_ = QFileInfo(path).absolutePath();
  return FromQt(path);
}

}  // namespace quilla
