#include "window/qt_printer.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMarginsF>
#include <QMessageBox>
#include <QPageLayout>
#include <QSaveFile>

#include "platform/failure.h"
#include "window/qt_dialogs.h"
#include "window/qt_text.h"
#include "window/sheet.h"

namespace quilla {
namespace {

constexpr double kMarginMm = 12;

bool CanWrite(const QString& path) {
  QSaveFile probe(path);
  return probe.open(QIODevice::WriteOnly);
}

/// Where to put the PDF; empty if the user wants none.
QString AskForPdf(const QString& name) {
  QFileDialog dialog(QApplication::activeWindow(), "No printer found: print to a PDF file", {},
                     "PDF Files (*.pdf)");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("pdf");
  MakeRoomForColumns(dialog);
  FillIn(dialog, QFileInfo(name).completeBaseName() + ".pdf");
  while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
    QString path = dialog.selectedFiles().constFirst();
    if (CanWrite(path)) return path;
    QMessageBox::critical(&dialog, QApplication::applicationName(), "Unable to save file.");
  }
  return {};
}

}  // namespace

bool QtPrinter::BeginRun(const std::string& name) {
  EndRun();
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setDocName(ToQt(name));
  printer->setCreator(QApplication::applicationName());
  printer->setPageMargins({kMarginMm, kMarginMm, kMarginMm, kMarginMm}, QPageLayout::Millimeter);
  // Qt falls back to PDF where there is no printer.
  if (printer->outputFormat() == QPrinter::PdfFormat) {
    const QString path = AskForPdf(ToQt(name));
    if (path.isEmpty()) return false;
    printer->setOutputFileName(path);
  }
  printer_ = std::move(printer);
  return true;
}

void QtPrinter::PrintForm(const Form& layout) {
  const bool has_sheet = painter_.isActive()
                             ? printer_->newPage()
                             : printer_ != nullptr && painter_.begin(printer_.get());
  if (!has_sheet) throw Failure(ErrorNumber::kWriteFailed);
  PaintSheet(painter_, {{0, 0}, printer_->pageRect(QPrinter::DevicePixel).size()}, layout);
}

void QtPrinter::EndRun() {
  if (painter_.isActive()) painter_.end();
  printer_.reset();
}

}  // namespace quilla
