#include "window/qt_event_loop.h"

#include <QApplication>
#include <QWindow>
#include <chrono>

namespace quilla {
namespace {

/// The program has ended under a handler that waits. No handler catches it, since it is no
/// std::exception; the gate does.
struct ProgramEnded {};

/// A turn of the loop waits no longer for an event.
constexpr std::chrono::milliseconds kLongestTurn{10};

}  // namespace

QWidget* QtEventLoop::WindowOf(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second.get();
}

QWidget& QtEventLoop::MadeWindowOf(Form& form) {
  std::unique_ptr<QWidget>& window = windows_[&form];
  if (window == nullptr) {
    window = make_window_(form);
    if (on_made) on_made(form, *window);
  }
  return *window;
}

void QtEventLoop::OpenWindow(Form& form) {
  QWidget* const window = &MadeWindowOf(form);
  const QWidget* const over = window->isModal()       ? QApplication::activeWindow()
                              : form.owner == nullptr ? nullptr
                                                      : WindowOf(*form.owner);
  if (over != nullptr) {
    window->winId();  // makes the window's handle
    window->windowHandle()->setTransientParent(over->windowHandle());
  }
  window->show();
}

void QtEventLoop::RaiseWindow(Form& form) {
  QWidget* const window = WindowOf(form);
  if (window == nullptr) return;
  window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->raise();
  window->activateWindow();
}

void QtEventLoop::CloseWindow(Form& form) {
  if (QWidget* const window = WindowOf(form)) window->hide();
  const auto wait = waits_.find(&form);
  if (wait != waits_.end()) wait->second->quit();
}

void QtEventLoop::WaitUntilClosed(Form& form) {
  QEventLoop loop;
  waits_[&form] = &loop;
  while (form.visible() && !gate_.is_shut()) loop.exec();
  waits_.erase(&form);
  if (gate_.is_shut()) throw ProgramEnded{};
}

void QtEventLoop::Yield(const Control& /*waiter*/) { Turn(); }

void QtEventLoop::Turn() {
  wake_.start(kLongestTurn);
  QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  if (gate_.is_shut()) throw ProgramEnded{};
}

void QtEventLoop::End() {
  gate_.Shut();
  QCoreApplication::exit();
}

}  // namespace quilla

#include "moc_gate.cpp"
