// Opens a window and ends as soon as it has been painted:
//   quilla-first-paint splash|panel|empty
// where `splash` and `panel` are windows of the program from its own start, and `empty` is a main
// window of Qt with nothing in it.
#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <utility>

#include "panel/quilla.h"
#include "window/qt_outside.h"

namespace quilla {
namespace {

/// Ends the program behind the first paint of the window of that name.
class FirstPaint : public QObject {
 public:
  explicit FirstPaint(QString window) : window_(std::move(window)) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint || !watched->isWidgetType()) return false;
    if (static_cast<const QWidget*>(watched)->window()->objectName() == window_) {
      QTimer::singleShot(0, qApp, &QCoreApplication::quit);
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
  program.Start();
  const int result = QApplication::exec();
  outside.event_loop().DestroyWindows();
  return result;
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
