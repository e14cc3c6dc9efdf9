#include "window/session_end.h"

#include <QApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <cstdlib>
#include <utility>

namespace quilla {
namespace {

/// What is still there when the C library ends the program, as Qt has it do when the display has
/// gone; null when the program ends in any other way.
SessionEnd* g_session_end = nullptr;

/// Whether the windows are on a display, where somebody may sit.
bool HasDisplay() {
  const QString platform = QGuiApplication::platformName();
  return platform != "offscreen" && platform != "minimal";
}

}  // namespace

SessionEnd::SessionEnd(Quilla& quilla, QtOutside& outside) : quilla_(quilla), outside_(outside) {
  connect(qApp, &QGuiApplication::commitDataRequest, this, &SessionEnd::Commit,
          Qt::DirectConnection);
  if (requests_.descriptor() >= 0) {
    auto* const notifier = new QSocketNotifier(requests_.descriptor(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
      requests_.TakeByte();
      End(HasDisplay());
    });
  }
  if (std::exchange(g_session_end, this) == nullptr) {
    std::atexit([] {
      if (g_session_end != nullptr) g_session_end->WriteRescue();
    });
  }
}

SessionEnd::~SessionEnd() { g_session_end = nullptr; }

void SessionEnd::End(bool somebody_can_answer) {
  if (outside_.gate().is_shut()) return;
  WriteRescue();
  ProgrammingPanel* const panel = quilla_.panel();
  if (panel == nullptr || !somebody_can_answer || asking_) {
    answered_ = false;
    outside_.event_loop().End();
    return;
  }
  asking_ = true;
  answered_ = true;
  outside_.gate().Enter([&] { outside_.event_loop().CloseByFrame(panel->form()); });
  asking_ = false;
  if (answered_) panel->rescue().Remove();
}

void SessionEnd::Commit(QSessionManager& manager) {
  const bool may_ask = manager.allowsInteraction();
  End(may_ask);
  if (!may_ask) return;
  if (!outside_.gate().is_shut()) manager.cancel();
  manager.release();
}

void SessionEnd::WriteRescue() {
  if (!asking_ && quilla_.panel() != nullptr) quilla_.panel()->rescue().Write();
}

}  // namespace quilla

#include "moc_session_end.cpp"
