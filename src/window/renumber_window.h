// The window of the equivalents tool: a page for labels and one for variables, of which one is on
// view, and the digit keys while a number is entered.
#ifndef QUILLA_WINDOW_RENUMBER_WINDOW_H_
#define QUILLA_WINDOW_RENUMBER_WINDOW_H_

#include <QWidget>

#include "window/form_mirror.h"

namespace quilla {

class RenumberWindow : public QWidget {
  Q_OBJECT

 public:
  RenumberWindow(Gate& gate, EventLoop& event_loop, Form& form);

 private:
  struct PageNames;

  QWidget* MakePage(const PageNames& names);
  QWidget* MakeDigitKeys();

  FormMirror mirror_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_RENUMBER_WINDOW_H_
