// The window of the main panel: menu bar, the program table, the place where the
// input boxes open, and the tip line.
#ifndef QUILLA_WINDOW_MAIN_WINDOW_H_
#define QUILLA_WINDOW_MAIN_WINDOW_H_

#include <QMainWindow>

#include "window/box_area.h"
#include "window/form_mirror.h"
#include "window/grid_view.h"
#include "window/instruction_page.h"

namespace quilla {

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow(Gate& gate, EventLoop& event_loop, Form& form);

  FormMirror& mirror() { return mirror_; }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QWidget* MakeProgramTable();
  QWidget* MakeBoxes();
  QWidget* MakeTipLine();
  QWidget* MakeStrip(const char* box, const char* heading, const char* label, int stretch);
  void FocusNewBox();
  void FocusHome();

  FormMirror mirror_;
  GridView* table_ = nullptr;
  BoxArea* boxes_ = nullptr;
  const QWidget* box_before_ = nullptr;
  InstructionPage* instructions_ = nullptr;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_MAIN_WINDOW_H_
