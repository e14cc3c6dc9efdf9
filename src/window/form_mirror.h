// A form on the screen: it binds the controls of the form to widgets, and does what belongs to
// the window as a whole: keys, the pointer's way over the controls, focus, default button, title.
#ifndef QUILLA_WINDOW_FORM_MIRROR_H_
#define QUILLA_WINDOW_FORM_MIRROR_H_

#include <QAction>
#include <QHash>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "platform/button.h"
#include "platform/form.h"
#include "platform/grid.h"
#include "platform/outside.h"
#include "platform/text_box.h"
#include "platform/text_list.h"
#include "window/gate.h"
#include "window/grid_view.h"

class QAbstractButton;
class QComboBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QMouseEvent;
class QRadioButton;

namespace quilla {

class FormMirror final : public QObject, private ControlObserver {
  Q_OBJECT
  Q_DISABLE_COPY_MOVE(FormMirror)

 public:
  /// `window` shows the form; it must go before the form does.
  FormMirror(Gate& gate, EventLoop& event_loop, Form& form, QWidget& window);
  ~FormMirror() override;

  Gate& gate() { return gate_; }
  Form& form() { return form_; }

  /// Each makes the widget show the control, under the control's name.
  void Bind(Button& button, QAbstractButton& widget);
  void Bind(Option& option, QRadioButton& widget);
  void Bind(Label& label, QLabel& widget);
  void Bind(TextBox& text_box, QLineEdit& widget);
  void Bind(ComboBox& combo, QComboBox& widget);
  void Bind(Box& box, QWidget& widget);
  void Bind(Grid& grid, GridView& widget);
  void Bind(MenuEntry& entry, QAction& action);

  /// The widget or the action that shows a control; null while there is none.
  QWidget* WidgetOf(const Control& control) const;
  QAction* ActionOf(const MenuEntry& entry) const;
  /// The control shown by `widget` or by the nearest widget that it stands in; null if none is.
  Control* ControlAt(const QWidget* widget) const;

  /// Gives the focus when what had it is gone and the models ask for nothing.
  std::function<void()> focus_home;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PropertyChanged(Property property) override;
  void Register(Control& control, QWidget& widget);
  void SettleFocus();
  bool HandleKey(const QKeyEvent& key);
  /// The button on view whose access key this is; null if there is none.
  QAbstractButton* ButtonOf(const QKeyEvent& access_key) const;
  bool PressButton(Button* button);
  bool PressFocusedButton();
  bool PassCharacter(const QKeyEvent& key);
  Control* KeyTaker() const;
  bool HandlePointer(const QWidget& widget, const QMouseEvent& mouse);
  void MarkDefaultButton();
  void ShowEnabled();
  void ShowPointer();

  Gate& gate_;
  EventLoop& event_loop_;
  Form& form_;
  QWidget& window_;
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
