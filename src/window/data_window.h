// The window of the disassembler: the bytes of a hex file, and what the next selection makes of
// its rows.
#ifndef QUILLA_WINDOW_DATA_WINDOW_H_
#define QUILLA_WINDOW_DATA_WINDOW_H_

#include <QWidget>

#include "window/form_mirror.h"

namespace quilla {

class DataWindow : public QWidget {
  Q_OBJECT

 public:
  DataWindow(Gate& gate, EventLoop& event_loop, Form& form);

 private:
  FormMirror mirror_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_DATA_WINDOW_H_
