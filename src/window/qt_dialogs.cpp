#include "window/qt_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QTreeView>

#include "window/qt_text.h"

namespace quilla {
namespace {

constexpr const char* kTitle = "Quilla";
/// The width of a file dialog, with room for every column.
constexpr int kWidthInDigits = 100;

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

/// The button that loses nothing; a notice has been asked for.
QMessageBox::StandardButton DefaultButton(BoxIcon icon, BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::kOk:
      return QMessageBox::Ok;
    case BoxButtons::kOkCancel:
      return icon == BoxIcon::kQuestion ? QMessageBox::Cancel : QMessageBox::Ok;
    case BoxButtons::kYesNo:
      return QMessageBox::No;
    case BoxButtons::kYesNoCancel:
      return QMessageBox::Yes;
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

int Ask(QWidget* parent, QMessageBox::Icon icon, const QString& text,
        QMessageBox::StandardButton preselected,
        QMessageBox::StandardButtons buttons = QMessageBox::Ok) {
  QMessageBox box(icon, kTitle, text, buttons, parent);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(preselected);
  return box.exec();
}

/// Whether a file may be written where `path` leads, as the user answers.
bool MayWrite(QFileDialog& dialog, const FileDialogRequest& request, const QString& path) {
  if ((request.flags & kPathMustExist) != 0 && !QFileInfo(path).dir().exists()) {
    Ask(&dialog, QMessageBox::Warning, "There is no such folder.", QMessageBox::Ok);
    return false;
  }
  const QFileInfo target(request.target ? ToQt(request.target(FromQt(path))) : path);
  if ((request.flags & kOverwritePrompt) == 0 || !target.exists()) return true;
  return Ask(&dialog, QMessageBox::Question,
             target.fileName() + " already exists. Do you want to replace it?", QMessageBox::No,
             QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace

BoxAnswer QtMessageBoxes::Show(BoxIcon icon, const std::string& text, BoxButtons buttons) {
  return AnswerOf(Ask(QApplication::activeWindow(), QtIcon(icon), ToQt(text),
                      DefaultButton(icon, buttons), QtButtons(buttons)));
}

QString QtFilter(const std::string& filter) {
  const QStringList parts = ToQt(filter).split('|');
  if (parts.size() < 2) return ToQt(filter);
  const QString name = parts[0].section('(', 0, 0).trimmed();
  return name + " (" + QString(parts[1]).replace(';', ' ') + ')';
}

void MakeRoomForColumns(QFileDialog& dialog) {
  dialog.resize(kWidthInDigits * dialog.fontMetrics().horizontalAdvance(u'0'), dialog.height());
  for (const QTreeView* list : dialog.findChildren<QTreeView*>()) {
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  }
}

void FillIn(QFileDialog& dialog, const QString& name) {
  dialog.selectFile(name);
  auto* const edit = dialog.findChild<QLineEdit*>("fileNameEdit");
  if (edit != nullptr) edit->setSelection(0, static_cast<int>(name.lastIndexOf('.')));
}

// Qt's dialogs keep a file of settings in the user's folder; in a place that is no folder they
// cannot.
QtFileDialogs::QtFileDialogs() {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
}

std::optional<std::string> QtFileDialogs::Choose(const FileDialogRequest& request) {
  QFileDialog dialog(QApplication::activeWindow(), ToQt(request.title), folder_,
                     QtFilter(request.filter));
  const bool saves = request.kind == FileDialogKind::kSave;
  dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  const bool must_exist = !saves && (request.flags & kFileMustExist) != 0;
  dialog.setFileMode(must_exist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);  // it would ask about the name that is typed
  MakeRoomForColumns(dialog);
  if (saves) FillIn(dialog, ToQt(request.name));
  while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
    const QString path = dialog.selectedFiles().constFirst();
    if (saves && !MayWrite(dialog, request, path)) continue;
    folder_ = QFileInfo(path).absolutePath();
    return FromQt(path);
  }
  return std::nullopt;
}

}  // namespace quilla
