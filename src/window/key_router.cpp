#include "window/key_router.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QPushButton>

#include "platform/text_box.h"
#include "platform/text_list.h"
#include "window/form_mirror.h"

namespace quilla {
namespace {

constexpr char16_t kFirstPrintable = u'!';
constexpr char16_t kLastPrintable = u'~';

bool IsUsable(const Control* control) {
  return control != nullptr && control->IsVisible() && control->IsEnabled();
}

}  // namespace

bool KeyRouter::Press(const QKeyEvent& key) {
  if (QAbstractButton* const button = ButtonOf(key)) {
    button->click();
    return true;
  }
  constexpr auto kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if ((key.modifiers() & kCommands) != Qt::NoModifier) return false;
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return ChooseButton(mirror_.form().default_button()) || ClickFocusedButton();
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

bool KeyRouter::ClickFocusedButton() {
  auto* const button = qobject_cast<QPushButton*>(mirror_.window().focusWidget());
  if (button != nullptr) button->click();
  return button != nullptr;
}

// A character goes to the control with the focus, or to the box around it, or, where these take
// none, to the control that the program last gave the focus.
bool KeyRouter::PassCharacter(const QKeyEvent& key) {
  const QString text = key.text();
  if (text.size() != 1 || text[0] < kFirstPrintable || text[0] > kLastPrintable) return false;
  Control* const taker = KeyTaker();
  if (!IsUsable(taker) || !taker->TakesKeys()) return false;
  mirror_.gate().Enter([&] { taker->PressKey(static_cast<char>(text[0].unicode())); });
  return true;
}

Control* KeyRouter::KeyTaker() const {
  Control* control = mirror_.ControlAt(mirror_.window().focusWidget());
  const bool takes_text = dynamic_cast<const TextBox*>(control) != nullptr ||
                          dynamic_cast<const ComboBox*>(control) != nullptr;
  if (takes_text) return nullptr;
  while (control != nullptr && !control->TakesKeys()) control = control->container();
  return control == nullptr ? mirror_.form().focused() : control;
}

}  // namespace quilla
