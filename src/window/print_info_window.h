// The window of the print information: each count beside its caption.
#ifndef QUILLA_WINDOW_PRINT_INFO_WINDOW_H_
#define QUILLA_WINDOW_PRINT_INFO_WINDOW_H_

#include <QWidget>

#include "window/form_mirror.h"

namespace quilla {

class PrintInfoWindow : public QWidget {
  Q_OBJECT

 public:
  PrintInfoWindow(Gate& gate, EventLoop& event_loop, Form& form);

 private:
  FormMirror mirror_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_PRINT_INFO_WINDOW_H_
