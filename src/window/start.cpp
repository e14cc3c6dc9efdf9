#include "window/start.h"

#include "window/splash_window.h"

namespace quilla {

void Start(Quilla& quilla, QtOutside& outside) {
  quilla.Start();
  Form& splash = *quilla.Forms().front();
  auto* const window = qobject_cast<SplashWindow*>(outside.event_loop().WindowOf(splash));
  const auto make_panel = [&quilla, &outside] {
    quilla.MakePanel();
    outside.event_loop().MadeWindowOf(quilla.panel()->form());
  };
  const auto painted = [make_panel, &outside] { outside.gate().Enter(make_panel); };
  QObject::connect(window, &SplashWindow::Painted, window, painted, Qt::QueuedConnection);
}

}  // namespace quilla
