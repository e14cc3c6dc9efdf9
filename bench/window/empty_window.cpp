// What a window of Qt costs that is none of the program's, for comparison: opens it and ends the
// process as soon as it has been painted:
//   quilla-empty-window empty|text|large [memory]
// `empty` is a main window with nothing in it, `text` one with a word, and `large` an empty one as
// large as the screen. With `memory` it comes to rest first, and tells the kilobytes of memory that
// it takes.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QStringList>

#include "first_paint.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList words = QApplication::arguments();
  quilla::bench::FirstPaint first_paint({"Window"}, words.contains("memory"));
  application.installEventFilter(&first_paint);
  QMainWindow window;
  window.setObjectName("Window");
  if (words.value(1) == "text") window.setCentralWidget(new QLabel("Text"));
  if (words.value(1) == "large") window.setWindowState(Qt::WindowMaximized);
  window.show();
  return QApplication::exec();
}
