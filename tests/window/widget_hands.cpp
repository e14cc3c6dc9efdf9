#include "window/widget_hands.h"

#include <QApplication>
#include <exception>

#include "window/windows.h"

namespace quilla::robot {
namespace {

constexpr QSize kSmallScreen(1366, 768);

}  // namespace

WidgetHands::WidgetHands(ScriptedEventLoop& event_loop) : event_loop_(event_loop) {
  event_loop_.on_open = [this](Form& form) { Open(form); };
  event_loop_.on_close = [this](const Form& form) {
    const auto found = shown_.find(&form);
    if (found != shown_.end()) found->second.window->hide();
  };
}

void WidgetHands::Open(Form& form) {
  Shown& shown = shown_[&form];
  if (shown.window == nullptr) {
    shown.window = MakeWindow(gate_, event_loop_, form);
    shown.mirror = shown.window->findChild<FormMirror*>();
    shown.window->setWindowState(Qt::WindowNoState);
    if (shown.window->width() > kSmallScreen.width()) shown.window->resize(kSmallScreen);
  }
  shown.window->show();
  QCoreApplication::processEvents();
}

void WidgetHands::Settle() {
  QCoreApplication::processEvents();
  if (const auto escaped = gate_.TakeEscaped()) std::rethrow_exception(escaped);
}

}  // namespace quilla::robot
