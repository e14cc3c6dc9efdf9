// Paper: the sheets of a run are one job of the default printer, or one PDF file where the machine
// has no printer.
#ifndef QUILLA_WINDOW_QT_PRINTER_H_
#define QUILLA_WINDOW_QT_PRINTER_H_

#include <QPainter>
#include <QPrinter>
#include <memory>
#include <string>

#include "platform/outside.h"

namespace quilla {

class QtPrinter : public PagePrinter {
 public:
  /// Where there is no printer the user chooses the PDF file.
  bool BeginRun(const std::string& name) override;
  void PrintForm(const Form& layout) override;
  void EndRun() override;

 private:
  std::unique_ptr<QPrinter> printer_;
  QPainter painter_;  // active from the first sheet of a run on
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_QT_PRINTER_H_
