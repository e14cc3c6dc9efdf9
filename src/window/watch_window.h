// The simulator's window: the instruction that comes next, and all tables of the machine side by
// side, with the keys that step it and set its lines and ports.
#ifndef QUILLA_WINDOW_WATCH_WINDOW_H_
#define QUILLA_WINDOW_WATCH_WINDOW_H_

#include <QLayout>
#include <QWidget>

#include "window/form_mirror.h"
#include "window/grid_view.h"

namespace quilla {

class WatchWindow : public QWidget {
  Q_OBJECT

 public:
  WatchWindow(Gate& gate, EventLoop& event_loop, Form& form);

 private:
  QLayout* MakeInstruction();
  QLayout* MakePorts();
  QLayout* MakeLines();
  /// The arrow from the key of an interrupt line to its row.
  QWidget* MakeArrow(const char* name);
  QWidget* MakeStartingAddress();
  /// A table that scrolls in the window's height.
  GridView* MakeTallTable(const char* name, int width_in_digits);
  /// The same, its own headings in the place of a caption.
  GridView* MakeHeadedTable(const char* caption, const char* name, int width_in_digits);

  void PutInScrollArea(QWidget& content);

  FormMirror mirror_;
  QWidget* execute_ = nullptr;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_WATCH_WINDOW_H_
