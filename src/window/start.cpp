#include "window/start.h"

#include <QApplication>
#include <QTimer>

#include "window/program_icon.h"
#include "window/splash_window.h"

namespace quilla {
namespace {

/// A splash that is out of sight is never painted, and is waited for no longer.
constexpr int kLongestWaitMs = 200;
/// What need not be done before the panel is painted is done so long after it was shown.
constexpr int kUntilPaintedMs = 100;

}  // namespace

// The time of the splash runs while its fonts are loaded and the panel is made; but it does not go
// before it has been painted.
void Start(Quilla& quilla, QtOutside& outside) {
  QtClock& clock = outside.clock();
  clock.Hold();
  quilla.Start();
  Form& splash = *quilla.Forms().front();
  auto* const window = qobject_cast<SplashWindow*>(outside.event_loop().WindowOf(splash));
  QTimer::singleShot(kLongestWaitMs, window, [&clock] { clock.LetGo(); });
  const auto make_panel = [&quilla, &outside] {
    quilla.MakePanel();
    outside.event_loop().MadeWindowOf(quilla.panel()->form());
  };
  const auto painted = [make_panel, &outside, &clock] {
    outside.gate().Enter(make_panel);
    clock.LetGo();
  };
  // It may have been painted while it was shown.
  if (window->is_painted()) QTimer::singleShot(0, window, painted);
  QObject::connect(window, &SplashWindow::Painted, window, painted, Qt::QueuedConnection);
  const auto finish = [&outside, &splash] {
    outside.event_loop().DiscardWindow(splash);
    QApplication::setWindowIcon(ProgramIcon());
  };
  QObject::connect(window, &SplashWindow::Gone, &outside.gate(), [&outside, finish] {
    QTimer::singleShot(kUntilPaintedMs, &outside.gate(), finish);
  });
}

}  // namespace quilla
