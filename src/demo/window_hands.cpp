#include "demo/window_hands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScopeGuard>
#include <stdexcept>
#include <string>

#include "window/form_mirror.h"
#include "window/qt_text.h"

namespace quilla::demo {
namespace {

constexpr char kFirstPrintable = '!';
constexpr char kLastPrintable = '~';

void SendKey(QWidget& widget, Qt::Key key, const QString& text = {}) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &event);
  }
}

void SendMouse(QWidget& widget, QEvent::Type type, QPoint place, Qt::MouseButton button,
               Qt::MouseButtons buttons) {
  QMouseEvent event(type, place, widget.mapToGlobal(place), button, buttons, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

void MovePointer(QWidget& widget, QPoint place, Qt::MouseButtons buttons = Qt::NoButton) {
  SendMouse(widget, QEvent::MouseMove, place, Qt::NoButton, buttons);
}

// A press of a real mouse gives the focus to what takes it by clicks.
void PressMouse(QWidget& widget, QPoint place) {
  QWidget* taker = &widget;
  while (taker != nullptr && (taker->focusPolicy() & Qt::ClickFocus) == 0) {
    taker = taker->isWindow() ? nullptr : taker->parentWidget();
  }
  if (taker != nullptr) taker->setFocus(Qt::MouseFocusReason);
  SendMouse(widget, QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
}

void ReleaseMouse(QWidget& widget, QPoint place) {
  SendMouse(widget, QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
}

void ClickMouse(QWidget& widget, QPoint place) {
  PressMouse(widget, place);
  ReleaseMouse(widget, place);
}

QPoint PlaceOf(GridView& view, robot::Cell cell) {
  const QModelIndex index = view.model()->index(cell.row, cell.column);
  view.scrollTo(index);
  return view.visualRect(index).center();
}

FormMirror& MirrorIn(const QWidget& window) {
  return *window.findChild<FormMirror*>({}, Qt::FindDirectChildrenOnly);
}

}  // namespace

QWidget& WindowHands::WidgetOf(const Control& control) const {
  QWidget* const widget = MirrorIn(WindowOf(*control.form())).WidgetOf(control);
  if (widget == nullptr) throw std::logic_error("no widget shows " + control.name());
  return *widget;
}

void WindowHands::Click(Control& control) {
  if (const auto* const entry = dynamic_cast<MenuEntry*>(&control)) {
    Choose(*MirrorIn(WindowOf(*control.form())).ActionOf(*entry));
  } else {
    QWidget& widget = WidgetOf(control);
    Aim(widget, widget.rect());
    ClickMouse(widget, widget.rect().center());
  }
  Settle();
}

void WindowHands::Press(Control& control) {
  if (dynamic_cast<Button*>(&control) != nullptr) {
    QWidget& widget = WidgetOf(control);
    Aim(widget, widget.rect());
    PressMouse(widget, widget.rect().center());
  }
  Settle();
}

// The pointer leaves the button first, so that letting go is no click.
void WindowHands::Release(Control& control) {
  if (dynamic_cast<Button*>(&control) != nullptr) {
    QWidget& widget = WidgetOf(control);
    Aim(widget, widget.rect());
    const QPoint outside(widget.width() + 1, widget.height() + 1);
    MovePointer(widget, outside, Qt::LeftButton);
    ReleaseMouse(widget, outside);
  }
  Settle();
}

void WindowHands::Type(TextBox& text_box, std::string_view character) {
  QWidget& widget = WidgetOf(text_box);
  AimKey(widget);
  widget.setFocus();
  SendKey(widget, Qt::Key_End);
  SendKey(widget, Qt::Key_unknown, ToQt(character));
  Settle();
}

void WindowHands::Clear(TextBox& text_box) {
  auto& edit = dynamic_cast<QLineEdit&>(WidgetOf(text_box));
  Aim(edit, edit.rect());
  edit.setFocus();
  edit.selectAll();
  SendKey(edit, Qt::Key_Delete);
  Settle();
}

void WindowHands::Key(Control& control, std::string_view character) {
  if (auto* const text_box = dynamic_cast<TextBox*>(&control)) {
    Type(*text_box, character);
    return;
  }
  const bool is_key =
      character.size() == 1 && character[0] >= kFirstPrintable && character[0] <= kLastPrintable;
  QWidget& widget = WidgetOf(control);
  if (!is_key || widget.focusPolicy() == Qt::NoFocus) return;
  AimKey(widget);
  widget.setFocus();
  SendKey(widget, Qt::Key_unknown, ToQt(character));
  Settle();
}

void WindowHands::Pick(ComboBox& list, int position) {
  auto& combo = dynamic_cast<QComboBox&>(WidgetOf(list));
  combo.setFocus();
  combo.showPopup();
  const auto close = qScopeGuard([&combo] { combo.hidePopup(); });
  QAbstractItemView& entries = *combo.view();
  entries.setCurrentIndex(combo.model()->index(position, 0));
  Aim(entries, entries.visualRect(entries.currentIndex()));
  SendKey(entries, Qt::Key_Return);
  Settle();
}

void WindowHands::AimAt(GridView& view, robot::Cell cell) {
  const QModelIndex index = view.model()->index(cell.row, cell.column);
  view.scrollTo(index);
  Aim(*view.viewport(), view.visualRect(index));
}

void WindowHands::Drag(Grid& grid, robot::Cell from, robot::Cell to) {
  auto& view = dynamic_cast<GridView&>(WidgetOf(grid));
  if (from.row < grid.FixedRows()) {
    const QHeaderView& heading = *view.horizontalHeader();
    const QPoint place(heading.sectionViewportPosition(from.column) + 1, heading.height() / 2);
    ClickMouse(*heading.viewport(), place);
    Settle();
    return;
  }
  AimAt(view, from);
  PressMouse(*view.viewport(), PlaceOf(view, from));
  const QPoint end = PlaceOf(view, to);
  MovePointer(*view.viewport(), end, Qt::LeftButton);
  ReleaseMouse(*view.viewport(), end);
  Settle();
}

// An entry of a menu that is shut cannot be hovered over.
void WindowHands::Hover(Control& control) {
  if (dynamic_cast<const MenuEntry*>(&control) != nullptr) return;
  const bool is_form = dynamic_cast<const Form*>(&control) != nullptr;
  QWidget& widget = is_form ? WindowOf(*control.form()) : WidgetOf(control);
  MovePointer(widget, widget.rect().center());
  Settle();
}

void WindowHands::HoverCell(Grid& grid, robot::Cell cell) {
  auto& view = dynamic_cast<GridView&>(WidgetOf(grid));
  MovePointer(*view.viewport(), PlaceOf(view, cell));
  Settle();
}

void WindowHands::PressKey(Button* button, const Form& form, Qt::Key key) {
  QWidget& window = WindowOf(form);
  QWidget* const shown = button == nullptr ? nullptr : MirrorIn(window).WidgetOf(*button);
  if (shown != nullptr) Aim(*shown, shown->rect());
  QWidget* const focus = window.focusWidget();
  SendKey(focus == nullptr ? window : *focus, key);
  Settle();
}

// A button that has been clicked last has the focus, and would be what Enter presses.
void WindowHands::Enter(Form& form) {
  QWidget* const focus = WindowOf(form).focusWidget();
  if (qobject_cast<QPushButton*>(focus) != nullptr) focus->clearFocus();
  PressKey(form.default_button(), form, Qt::Key_Return);
}

void WindowHands::Escape(Form& form) { PressKey(form.cancel_button(), form, Qt::Key_Escape); }

void WindowHands::Close(Form& form) {
  WindowOf(form).close();
  Settle();
}

}  // namespace quilla::demo
