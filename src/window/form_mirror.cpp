#include "window/form_mirror.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <utility>

#include "window/mirrors.h"
#include "window/qt_text.h"

namespace quilla {
namespace {

constexpr char16_t kFirstPrintable = u'!';
constexpr char16_t kLastPrintable = u'~';

bool IsUsable(const QWidget* widget) {
  return widget != nullptr && widget->isVisible() && widget->isEnabled();
}

bool IsUsable(const Control* control) {
  return control != nullptr && control->IsVisible() && control->IsEnabled();
}

}  // namespace

FormMirror::FormMirror(Gate& gate, EventLoop& event_loop, Form& form, QWidget& window)
    : QObject(&window), gate_(gate), event_loop_(event_loop), form_(form), window_(window) {
  form_.observer = this;
  window_.setObjectName(ToQt(form_.name()));
  PropertyChanged(Property::kCaption);
  ShowPointer();
  connect(&gate_, &Gate::Entered, this, [this] { focus_before_ = window_.focusWidget(); });
  connect(&gate_, &Gate::Left, this, &FormMirror::SettleFocus);
  qApp->installEventFilter(this);
}

FormMirror::~FormMirror() {
  form_.observer = nullptr;
  if (busy_) QApplication::restoreOverrideCursor();
}

void FormMirror::Register(Control& control, QWidget& widget) {
  widgets_.insert(&control, &widget);
  controls_.insert(&widget, &control);
}

void FormMirror::Bind(Button& button, QAbstractButton& widget) {
  new ButtonMirror(gate_, button, widget);
  Register(button, widget);
  if (form_.default_button() == &button) MarkDefaultButton();
}

void FormMirror::Bind(Option& option, QRadioButton& widget) {
  new OptionMirror(gate_, option, widget);
  Register(option, widget);
}

void FormMirror::Bind(Label& label, QLabel& widget) {
  new LabelMirror(gate_, label, widget);
  Register(label, widget);
}

void FormMirror::Bind(TextBox& text_box, QLineEdit& widget) {
  new TextBoxMirror(gate_, text_box, widget);
  Register(text_box, widget);
}

void FormMirror::Bind(ComboBox& combo, QComboBox& widget) {
  new ComboBoxMirror(gate_, combo, widget);
  Register(combo, widget);
}

void FormMirror::Bind(Box& box, QWidget& widget) {
  new WidgetMirror(gate_, box, widget);
  Register(box, widget);
}

void FormMirror::Bind(Grid& grid, GridView& widget) {
  new WidgetMirror(gate_, grid, widget);
  Register(grid, widget);
}

void FormMirror::Bind(MenuEntry& entry, QAction& action) {
  new MenuEntryMirror(gate_, entry, action);
  actions_.insert(&entry, &action);
}

QWidget* FormMirror::WidgetOf(const Control& control) const { return widgets_.value(&control); }

QAction* FormMirror::ActionOf(const MenuEntry& entry) const { return actions_.value(&entry); }

Control* FormMirror::ControlAt(const QWidget* widget) const {
  for (; widget != nullptr && widget != &window_; widget = widget->parentWidget()) {
    if (Control* const control = controls_.value(widget)) return control;
  }
  return nullptr;
}

void FormMirror::PropertyChanged(Property property) {
  if (property == Property::kCaption) {
    window_.setWindowTitle(ToQt(form_.caption()));
  } else if (property == Property::kEnabled) {
    ShowEnabled();
  } else if (property == Property::kPointer) {
    ShowPointer();
  } else if (property == Property::kDefault) {
    MarkDefaultButton();
  } else if (property == Property::kFocus) {
    focus_asked_ = true;
    QWidget* const widget = WidgetOf(*form_.focused());
    if (IsUsable(widget)) widget->setFocus(Qt::OtherFocusReason);
  }
}

// Qt switches the menus of a window with it, whatever their entries say.
void FormMirror::ShowEnabled() {
  window_.setEnabled(form_.enabled());
  for (auto entry = actions_.cbegin(); entry != actions_.cend(); ++entry) {
    entry.value()->setEnabled(entry.key()->enabled());
  }
}

// A window that takes no input has no pointer of its own, so the busy one is the whole program's.
void FormMirror::ShowPointer() {
  const bool busy = form_.pointer() == FormPointer::kBusy;
  if (std::exchange(busy_, busy) == busy) return;
  if (busy) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void FormMirror::MarkDefaultButton() {
  const auto mark = [this](const Button* button, bool on) {
    if (button == nullptr) return;
    if (auto* const widget = qobject_cast<QPushButton*>(WidgetOf(*button))) widget->setDefault(on);
  };
  mark(std::exchange(marked_default_, form_.default_button()), false);
  mark(marked_default_, true);
}

void FormMirror::SettleFocus() {
  QWidget* const asked = std::exchange(focus_asked_, false) && form_.focused() != nullptr
                             ? WidgetOf(*form_.focused())
                             : nullptr;
  if (IsUsable(asked)) {
    asked->setFocus(Qt::OtherFocusReason);
  } else if (window_.isVisible() && !IsUsable(focus_before_.data()) && focus_home) {
    focus_home();
  }
  focus_before_ = window_.focusWidget();
}

bool FormMirror::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Close && watched == &window_) {
    event->ignore();
    gate_.Enter([this] { event_loop_.CloseByFrame(form_); });
    return true;
  }
  if (event->type() == QEvent::Show && watched == &window_) {
    focus_asked_ = true;
    focus_before_ = nullptr;
    SettleFocus();
    return false;
  }
  const bool is_key =
      event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (!is_key && event->type() != QEvent::MouseMove) return false;
  if (!watched->isWidgetType()) return false;
  const auto& widget = static_cast<const QWidget&>(*watched);
  if (widget.window() != &window_) return false;
  if (event->type() == QEvent::MouseMove) {
    return HandlePointer(widget, static_cast<const QMouseEvent&>(*event));
  }
  // A key that a widget leaves alone comes again for the widgets that it stands in.
  const QWidget* const focus = window_.focusWidget();
  const bool comes_first = &widget == (focus == nullptr ? &window_ : focus);
  if (!comes_first) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (event->type() == QEvent::KeyPress) return HandleKey(key);
  // A button's access key is the button's while it is on view, not that of a menu.
  if (ButtonOf(key) == nullptr) return false;
  event->accept();
  return true;
}

QAbstractButton* FormMirror::ButtonOf(const QKeyEvent& access_key) const {
  if (access_key.modifiers() != Qt::AltModifier) return nullptr;
  const QKeySequence pressed(Qt::ALT | static_cast<Qt::Key>(access_key.key()));
  for (QWidget* widget : widgets_) {
    auto* const button = qobject_cast<QAbstractButton*>(widget);
    if (button == nullptr || !IsUsable(widget)) continue;
    if (QKeySequence::mnemonic(button->text()) == pressed) return button;
  }
  return nullptr;
}

bool FormMirror::HandleKey(const QKeyEvent& key) {
  if (QAbstractButton* const button = ButtonOf(key)) {
    button->click();
    return true;
  }
  constexpr auto kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if ((key.modifiers() & kCommands) != Qt::NoModifier) return false;
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return PressButton(form_.default_button()) || PressFocusedButton();
    case Qt::Key_Escape:
      return PressButton(form_.cancel_button());
    default:
      return PassCharacter(key);
  }
}

bool FormMirror::PressButton(Button* button) {
  if (!IsUsable(button)) return false;
  gate_.Enter([button] { button->Choose(); });
  return true;
}

bool FormMirror::PressFocusedButton() {
  auto* const button = qobject_cast<QPushButton*>(window_.focusWidget());
  if (button != nullptr) button->click();
  return button != nullptr;
}

Control* FormMirror::KeyTaker() const {
  Control* control = ControlAt(window_.focusWidget());
  const bool takes_text = dynamic_cast<const TextBox*>(control) != nullptr ||
                          dynamic_cast<const ComboBox*>(control) != nullptr;
  if (takes_text) return nullptr;
  while (control != nullptr && !control->TakesKeys()) control = control->container();
  return control == nullptr ? form_.focused() : control;
}

// A character goes to the control with the focus, or to the box around it, or, where these take
// none, to the control that the program last gave the focus.
bool FormMirror::PassCharacter(const QKeyEvent& key) {
  const QString text = key.text();
  if (text.size() != 1 || text[0] < kFirstPrintable || text[0] > kLastPrintable) return false;
  Control* const taker = KeyTaker();
  if (!IsUsable(taker) || !taker->TakesKeys()) return false;
  gate_.Enter([&] { taker->PressKey(static_cast<char>(text[0].unicode())); });
  return true;
}

bool FormMirror::HandlePointer(const QWidget& widget, const QMouseEvent& mouse) {
  if (mouse.buttons() != Qt::NoButton) return false;
  Control* const control = ControlAt(&widget);
  if (dynamic_cast<const Grid*>(control) != nullptr) return false;
  if (control == nullptr || !control->MouseMove || !control->IsEnabled()) {
    if (form_.MouseMove) gate_.Enter([this] { form_.Hover(); });
    return false;
  }
  gate_.Enter([control] { control->Hover(); });
  return true;
}

}  // namespace quilla
