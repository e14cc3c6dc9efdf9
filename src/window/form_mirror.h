// A form on the screen: which widget shows which control, and what belongs to the window as a
// whole: the pointer's way over the controls, focus, default button, title, closing.
#ifndef QUILLA_WINDOW_FORM_MIRROR_H_
#define QUILLA_WINDOW_FORM_MIRROR_H_

#include <QAction>
#include <QHash>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <string_view>

#include "platform/button.h"
#include "platform/form.h"
#include "platform/outside.h"
#include "window/gate.h"
#include "window/key_router.h"

class QMouseEvent;

namespace quilla {

class FormMirror final : public QObject, private ControlObserver {
  Q_OBJECT
  Q_DISABLE_COPY_MOVE(FormMirror)

 public:
  /// `window` shows the form; it must go before the form does.
  FormMirror(Gate& gate, EventLoop& event_loop, Form& form, QWidget& window);
  ~FormMirror() override;

  Gate& gate() const { return gate_; }
  Form& form() const { return form_; }
  QWidget& window() const { return window_; }

  /// The control of that name and kind. A layout that names one that is not there is a mistake in
  /// the program, which ends with the name.
  template <typename Kind = Control>
  Kind& Get(std::string_view name, int index = Control::kNoIndex) const {
    auto* const control = dynamic_cast<Kind*>(form_.Find(name, index));
    if (control == nullptr) EndWithout(name, index);
    return *control;
  }

  /// Notes which widget, or which action of a menu, shows a control.
  void Register(Control& control, QWidget& widget);
  void Register(MenuEntry& entry, QAction& action);
  /// The widget or the action that shows a control; null while there is none.
  QWidget* WidgetOf(const Control& control) const { return widgets_.value(&control); }
  QAction* ActionOf(const MenuEntry& entry) const { return actions_.value(&entry); }
  /// The control shown by `widget` or by the nearest widget that it stands in; null if none is.
  Control* ControlAt(const QWidget* widget) const;

  /// Whether characters that the control with the focus does not take go to the control that the
  /// program last gave the focus.
  bool passes_characters_on = true;
  /// Gives the focus when what had it is gone and the models ask for nothing.
  std::function<void()> focus_home;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PropertyChanged(Property property) override;
  [[noreturn]] void EndWithout(std::string_view name, int index) const;
  void SettleFocus();
  /// Tells the control under the pointer, or the form; whether that was a control.
  bool HandlePointer(const QWidget& widget, const QMouseEvent& mouse);
  void MarkDefaultButton();
  void ShowEnabled();
  void ShowPointer();
  void ShowColors();
  /// A window that opens again looks as it did the first time.
  void BeginAnew();

  Gate& gate_;
  EventLoop& event_loop_;
  Form& form_;
  QWidget& window_;
  KeyRouter keys_{*this};
  QHash<const Control*, QWidget*> widgets_;
  QHash<const Control*, QAction*> actions_;
  QHash<const QWidget*, Control*> controls_;
  bool focus_asked_ = false;
  bool busy_ = false;
  QPointer<QWidget> focus_before_;
  const Button* marked_default_ = nullptr;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_FORM_MIRROR_H_
