// Where a key that is pressed in a window goes before the widget with the focus sees it: access
// keys to their buttons, Enter and Esc to the default and the cancel button, characters to the
// control that takes them.
#ifndef QUILLA_WINDOW_KEY_ROUTER_H_
#define QUILLA_WINDOW_KEY_ROUTER_H_

#include <QPointer>
#include <QTimer>
#include <QtGlobal>

#include "platform/button.h"

class QAbstractButton;
class QKeyEvent;
class QWidget;

namespace quilla {

class FormMirror;

/// The property of a widget that acts while it is held, and not when it is let go.
inline constexpr const char* kActsWhileHeld = "acts_while_held";

class KeyRouter {
 public:
  explicit KeyRouter(FormMirror& mirror);

  /// Whether a button on view has this access key, which is then the button's, not that of a menu.
  bool IsAccessKey(const QKeyEvent& key) const { return ButtonOf(key) != nullptr; }
  /// Acts on a key; false leaves it to the widget with the focus.
  bool Press(const QKeyEvent& key);
  /// Whether a key only repeats, since it is held, what it pressed on `widget` or on another widget
  /// before: the one that has the focus now must not be pressed by it.
  bool IsHeld(const QWidget& widget, const QKeyEvent& key);
  /// Hears of every key that is let go, in whatever window. True if it may only repeat, and the
  /// button that it holds is told in a moment.
  bool Release(QWidget& widget, const QKeyEvent& key);

 private:
  QAbstractButton* ButtonOf(const QKeyEvent& access_key) const;
  bool ChooseButton(Button* button);
  bool ClickFocusedButton();
  bool PassCharacter(const QKeyEvent& key);
  Control* KeyTaker() const;

  FormMirror& mirror_;
  int released_ = 0;
  quint64 released_at_ = 0;
  QPointer<QWidget> let_go_;  // a button that may be held on
  QTimer letting_go_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_KEY_ROUTER_H_
