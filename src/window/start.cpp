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

// The time of the splash runs while its fonts are loaded and the panel is made, which is done while
// the window system shows the splash; but it does not go before it has been painted.
void Start(Quilla& quilla, QtOutside& outside) {
  QtClock& clock = outside.clock();
  clock.Hold();
  quilla.Start();
  Form& splash = *quilla.Forms().front();
  auto* const window = qobject_cast<SplashWindow*>(outside.event_loop().WindowOf(splash));
  const auto let_go = [&clock] { clock.LetGo(); };
  QObject::connect(window, &SplashWindow::Painted, window, let_go);
  QTimer::singleShot(kLongestWaitMs, window, let_go);
  if (window->is_painted()) let_go();  // it may have been painted while it was shown
  outside.gate().Enter([&quilla, &outside] {
    quilla.MakePanel();
    outside.event_loop().MadeWindowOf(quilla.panel()->form());
  });
  const auto finish = [&outside, &splash] {
    outside.event_loop().DiscardWindow(splash);
    QApplication::setWindowIcon(ProgramIcon());
  };
  QObject::connect(window, &SplashWindow::Gone, &outside.gate(), [&outside, finish] {
    QTimer::singleShot(kUntilPaintedMs, &outside.gate(), finish);
  });
}

}  // namespace quilla
