// Opens a window of the program, from its own start, and ends the process as soon as it has been
// painted:
//   quilla-first-paint splash|panel [memory]
// With `memory` it comes to rest first, and tells the kilobytes of memory that it takes.
#include "first_paint.h"

#include <QApplication>
#include <QString>
#include <QStringList>

#include "panel/quilla.h"
#include "window/qt_outside.h"
#include "window/start.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const QStringList words = QApplication::arguments();
  // On a busy machine the splash may have gone before it was painted.
  QStringList windows(quilla::kProgrammingPanel);
  if (words.value(1) == "splash") windows << quilla::kOpenForm;
  quilla::bench::FirstPaint first_paint(windows, words.contains("memory"));
  application.installEventFilter(&first_paint);
  quilla::QtOutside outside;
  quilla::Quilla program(outside.ports());
  quilla::Start(program, outside);
  return QApplication::exec();
}
