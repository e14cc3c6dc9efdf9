#include "window/form_mirror.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <string>
#include <utility>

#include "platform/grid.h"
#include "window/grid_view.h"
#include "window/qt_text.h"

namespace quilla {
namespace {

bool TakesFocus(const QWidget* widget) {
  return widget != nullptr && widget->isVisible() && widget->isEnabled();
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

void FormMirror::EndWithout(std::string_view name, int index) const {
  const QString wanted = WidgetName(std::string(name), index);
  qFatal("%s has no such control: %s", form_.name().c_str(), qPrintable(wanted));
}

void FormMirror::Register(Control& control, QWidget& widget) {
  widgets_.insert(&control, &widget);
  controls_.insert(&widget, &control);
  if (form_.default_button() == &control) MarkDefaultButton();
}

void FormMirror::Register(MenuEntry& entry, QAction& action) { actions_.insert(&entry, &action); }

Control* FormMirror::ControlAt(const QWidget* widget) const {
  for (; widget != nullptr && widget != &window_; widget = widget->parentWidget()) {
    if (Control* const control = controls_.value(widget)) return control;
  }
  return nullptr;
}

void FormMirror::PropertyChanged(Property property) {
  if (property == Property::kCaption) {
    window_.setWindowTitle(ToQt(form_.caption()).replace("[*]", "[*][*]"));  // Qt's own mark
  } else if (property == Property::kEnabled) {
    ShowEnabled();
  } else if (property == Property::kPointer) {
    ShowPointer();
  } else if (property == Property::kDefault) {
    MarkDefaultButton();
  } else if (property == Property::kFocus) {
    focus_asked_ = true;
    QWidget* const widget = WidgetOf(*form_.focused());
    if (TakesFocus(widget)) widget->setFocus(Qt::OtherFocusReason);
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
  if (TakesFocus(asked)) {
    asked->setFocus(Qt::OtherFocusReason);
  } else if (window_.isVisible() && !TakesFocus(focus_before_.data()) && focus_home) {
    focus_home();
  }
  focus_before_ = window_.focusWidget();
}

void FormMirror::BeginAnew() {
  if (QWidget* const last = window_.focusWidget()) last->clearFocus();
  for (GridView* table : window_.findChildren<GridView*>()) {
    table->scrollToTop();
    table->setCurrentIndex({});
  }
}

// The colours that controls have of their own are chosen for the palette.
void FormMirror::ShowColors() {
  for (const Control* control : form_.controls()) {
    if (control->observer == nullptr) continue;
    control->observer->PropertyChanged(Property::kActive);
    control->observer->PropertyChanged(Property::kColor);
  }
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
    if (!event->spontaneous()) BeginAnew();
    SettleFocus();
    return false;
  }
  if (event->type() == QEvent::ApplicationPaletteChange && watched == qApp) ShowColors();
  if (event->type() == QEvent::KeyRelease && watched->isWidgetType()) {
    return keys_.Release(static_cast<QWidget&>(*watched), static_cast<const QKeyEvent&>(*event));
  }
  const bool is_key =
      event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (!is_key && event->type() != QEvent::MouseMove) return false;
  if (!watched->isWidgetType()) return false;
  const auto& widget = static_cast<const QWidget&>(*watched);
  if (event->type() == QEvent::KeyPress &&
      keys_.IsHeld(widget, static_cast<const QKeyEvent&>(*event))) {
    return true;
  }
  if (widget.window() != &window_) return false;
  if (event->type() == QEvent::MouseMove) {
    return HandlePointer(widget, static_cast<const QMouseEvent&>(*event));
  }
  // A key that a widget leaves alone comes again for the widgets that it stands in.
  const QWidget* const focus = window_.focusWidget();
  const bool comes_first = &widget == (focus == nullptr ? &window_ : focus);
  const bool is_menus = qobject_cast<const QMenuBar*>(focus) != nullptr;
  if (!comes_first || is_menus) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (event->type() == QEvent::KeyPress) return keys_.Press(key);
  if (!keys_.IsAccessKey(key)) return false;
  event->accept();
  return true;
}

// The form hears of the pointer where it is over nothing else. What one of two widgets, the one in
// the other, has been told must not come again for the outer one.
bool FormMirror::HandlePointer(const QWidget& widget, const QMouseEvent& mouse) {
  if (mouse.buttons() != Qt::NoButton) return false;
  Control* const control = ControlAt(&widget);
  if (dynamic_cast<const Grid*>(control) != nullptr) return false;
  Control& hovered = control != nullptr ? *control : form_;
  if (hovered.MouseMove && hovered.IsEnabled()) gate_.Enter([&] { hovered.Hover(); });
  return control != nullptr;
}

}  // namespace quilla

#include "moc_form_mirror.cpp"
