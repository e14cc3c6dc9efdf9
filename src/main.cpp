// The program: the system with the desktop around it.
#include <QApplication>

#include "demo/show_me.h"
#include "panel/quilla.h"
#include "window/help.h"
#include "window/qt_outside.h"
#include "window/session_end.h"
#include "window/start.h"

int main(int argc, char** argv) {
  quilla::LetLongFilesFail();
  QApplication application(argc, argv);
  QApplication::setApplicationName("Quilla");
  QGuiApplication::setDesktopFileName("quilla");
  QApplication::setQuitOnLastWindowClosed(false);
  quilla::QtOutside outside;
  quilla::Quilla quilla(outside.ports());
  quilla::SessionEnd session_end(quilla, outside);
  quilla::Help help(quilla);
  outside.event_loop().on_made = [&](quilla::Form& form, QWidget& window) {
    help.AddTo(form, window);
  };
  quilla::demo::ShowMe show_me(quilla, outside);
  QObject::connect(
      &help, &quilla::Help::DemonstrationChosen, &application,
      [&show_me](const QString& name) { show_me.Begin(name); }, Qt::QueuedConnection);
  quilla::Start(quilla, outside);
  const int result = QApplication::exec();
  outside.event_loop().DestroyWindows();
  return result;
}
