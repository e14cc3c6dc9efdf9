#include "window/key_router.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QPushButton>
#include <utility>

#include "platform/text_box.h"
#include "platform/text_list.h"
#include "window/form_mirror.h"

namespace quilla {
namespace {

/// No finger presses a key again so soon.
constexpr quint64 kShortestPauseMs = 2;
/// Within which a key that repeats has come again.
constexpr int kLongestRepeatMs = 20;
constexpr char16_t kFirstPrintable = u'!';
constexpr char16_t kLastPrintable = u'~';

bool IsUsable(const Control* control) {
  return control != nullptr && control->IsVisible() && control->IsEnabled();
}

}  // namespace

KeyRouter::KeyRouter(FormMirror& mirror) : mirror_(mirror) {
  letting_go_.setSingleShot(true);
  letting_go_.setInterval(kLongestRepeatMs);
  QObject::connect(&letting_go_, &QTimer::timeout, &letting_go_, [this] {
    const QPointer<QWidget> button = std::exchange(let_go_, nullptr);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, " ");
    if (button != nullptr) QCoreApplication::sendEvent(button, &release);
  });
}

bool KeyRouter::Press(const QKeyEvent& key) {
  if (QAbstractButton* const button = ButtonOf(key)) {
    button->click();
    return true;
  }
  constexpr auto kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  // An access key whose button is disabled is no letter to be typed.
  if (key.modifiers() == Qt::AltModifier && !key.text().isEmpty()) return true;
  if ((key.modifiers() & kCommands) != Qt::NoModifier) return false;
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return ClickFocusedButton() || ChooseButton(mirror_.form().default_button());
    case Qt::Key_Escape:
      return ChooseButton(mirror_.form().cancel_button());
    default:
      return PassCharacter(key);
  }
}

QAbstractButton* KeyRouter::ButtonOf(const QKeyEvent& access_key) const {
  if (access_key.modifiers() != Qt::AltModifier) return nullptr;
  const QKeySequence pressed(Qt::ALT | static_cast<Qt::Key>(access_key.key()));
  for (auto* const button : mirror_.window().findChildren<QAbstractButton*>()) {
    const bool usable = button->isVisible() && button->isEnabled();
    if (usable && QKeySequence::mnemonic(button->text()) == pressed) return button;
  }
  return nullptr;
}

bool KeyRouter::ChooseButton(Button* button) {
  if (!IsUsable(button)) return false;
  mirror_.gate().Enter([button] { button->Choose(); });
  return true;
}

// Where the window system repeats a key it lets it go and presses it again in one moment, and Qt,
// that looks for it in what has come so far, may miss it.
bool KeyRouter::IsHeld(const QWidget& widget, const QKeyEvent& key) {
  const bool is_pressed_again = key.key() == released_ && key.timestamp() != 0 &&
                                key.timestamp() <= released_at_ + kShortestPauseMs;
  if (!key.isAutoRepeat() && !is_pressed_again) return false;
  if (key.key() == Qt::Key_Space) letting_go_.stop();
  const bool writes_blanks = qobject_cast<const QLineEdit*>(&widget) != nullptr;
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter ||
         (key.key() == Qt::Key_Space && !writes_blanks);
}

bool KeyRouter::Release(QWidget& widget, const QKeyEvent& key) {
  released_ = key.key();
  released_at_ = key.timestamp();
  const bool may_repeat = key.key() == Qt::Key_Space && key.timestamp() != 0 &&
                          widget.property(kActsWhileHeld).toBool() &&
                          widget.window() == &mirror_.window();
  if (!may_repeat || key.isAutoRepeat()) return false;
  let_go_ = &widget;
  letting_go_.start();
  return true;
}

// A button out of sight may have the focus, but does not show it.
bool KeyRouter::ClickFocusedButton() {
  auto* const button = qobject_cast<QPushButton*>(mirror_.window().focusWidget());
  if (button == nullptr || !button->parentWidget()->rect().intersects(button->geometry())) {
    return false;
  }
  button->click();
  return true;
}

// A character goes to the control with the focus, or to the box around it, or, where these take
// none and the window has them go further, to the control that the program last gave the focus.
bool KeyRouter::PassCharacter(const QKeyEvent& key) {
  const QString text = key.text();
  if (text.size() != 1 || text[0] < kFirstPrintable || text[0] > kLastPrintable) return false;
  Control* const taker = KeyTaker();
  if (!IsUsable(taker) || !taker->TakesKeys()) return false;
  mirror_.gate().Enter([&] { taker->PressKey(static_cast<char>(text[0].unicode())); });
  return true;
}

Control* KeyRouter::KeyTaker() const {
  Control* const focused = mirror_.ControlAt(mirror_.window().focusWidget());
  Control* control = focused;
  const bool takes_text = dynamic_cast<const TextBox*>(control) != nullptr ||
                          dynamic_cast<const ComboBox*>(control) != nullptr;
  if (takes_text) return nullptr;
  while (control != nullptr && !control->TakesKeys()) control = control->container();
  if (control != nullptr) return control;
  return focused == nullptr || mirror_.passes_characters_on ? mirror_.form().focused() : nullptr;
}

}  // namespace quilla
