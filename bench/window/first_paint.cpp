// Opens a window and ends the process as soon as it has been painted:
//   quilla-first-paint splash|panel|empty
// where `splash` and `panel` are windows of the program from its own start, and `empty` is a main
// window of Qt with nothing in it.
#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <cstdlib>
#include <utility>

#include "panel/quilla.h"
#include "window/qt_outside.h"
#include "window/start.h"

namespace quilla {
namespace {

/// Ends the process behind the first paint of the window of that name. What the program does at its
/// end, such as to ask whether to save, is no part of its start.
class FirstPaint : public QObject {
 public:
  explicit FirstPaint(QString window) : window_(std::move(window)) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint || !watched->isWidgetType()) return false;
    const QString painted = static_cast<const QWidget*>(watched)->window()->objectName();
    // On a busy machine the splash may have gone before it was painted.
    if (painted == window_ || painted == kProgrammingPanel) {
      QTimer::singleShot(0, [] { std::_Exit(EXIT_SUCCESS); });
    }
    return false;
  }

 private:
  QString window_;
};

int ShowEmpty() {
  QMainWindow window;
  window.setObjectName("Empty");
  window.show();
  return QApplication::exec();
}

int ShowProgram() {
  QtOutside outside;
  Quilla program(outside.ports());
  Start(program, outside);
  return QApplication::exec();
}

}  // namespace
}  // namespace quilla

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const QString window = argc > 1 ? argv[1] : "";
  quilla::FirstPaint first_paint(window == "splash"  ? quilla::kOpenForm
                                 : window == "panel" ? quilla::kProgrammingPanel
                                                     : "Empty");
  application.installEventFilter(&first_paint);
  return window == "empty" ? quilla::ShowEmpty() : quilla::ShowProgram();
}
