#include "window/widget_hands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <exception>
#include <stdexcept>
#include <string>

#include "window/grid_view.h"
#include "window/qt_text.h"
#include "window/windows.h"

namespace quilla::robot {
namespace {

constexpr QSize kSmallScreen(1366, 768);
constexpr char kFirstPrintable = '!';
constexpr char kLastPrintable = '~';

void SendKey(QWidget& widget, const QString& text) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, 0, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &event);
  }
}

void MovePointer(QWidget& widget, QPoint place, Qt::MouseButtons buttons = Qt::NoButton) {
  QMouseEvent event(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, buttons,
                    Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

QPoint PlaceOf(GridView& view, Cell cell) {
  const QModelIndex index = view.model()->index(cell.row, cell.column);
  view.scrollTo(index);
  return view.visualRect(index).center();
}

void PressKey(QWidget& window, Qt::Key key) {
  QWidget* const focus = window.focusWidget();
  QTest::keyClick(focus == nullptr ? &window : focus, key);
}

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

QWidget& WidgetHands::WidgetOf(const Control& control) const {
  QWidget* const widget = shown_.at(control.form()).mirror->WidgetOf(control);
  if (widget == nullptr) throw std::logic_error("no widget shows " + control.name());
  return *widget;
}

void WidgetHands::Settle() {
  QCoreApplication::processEvents();
  if (const auto escaped = gate_.TakeEscaped()) std::rethrow_exception(escaped);
}

void WidgetHands::Click(Control& control) {
  if (const auto* const entry = dynamic_cast<MenuEntry*>(&control)) {
    shown_.at(control.form()).mirror->ActionOf(*entry)->trigger();
  } else {
    QTest::mouseClick(&WidgetOf(control), Qt::LeftButton);
  }
  Settle();
}

void WidgetHands::Press(Control& control) {
  if (dynamic_cast<Button*>(&control) != nullptr) {
    QTest::mousePress(&WidgetOf(control), Qt::LeftButton);
  }
  Settle();
}

// The pointer leaves the button first, so that letting go is no click.
void WidgetHands::Release(Control& control) {
  if (dynamic_cast<Button*>(&control) != nullptr) {
    QWidget& widget = WidgetOf(control);
    const QPoint outside(widget.width() + 1, widget.height() + 1);
    MovePointer(widget, outside, Qt::LeftButton);
    QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, outside);
  }
  Settle();
}

void WidgetHands::Type(TextBox& text_box, std::string_view character) {
  QWidget& widget = WidgetOf(text_box);
  widget.setFocus();
  QTest::keyClick(&widget, Qt::Key_End);
  SendKey(widget, ToQt(character));
  Settle();
}

void WidgetHands::Clear(TextBox& text_box) {
  auto& edit = dynamic_cast<QLineEdit&>(WidgetOf(text_box));
  edit.setFocus();
  edit.selectAll();
  QTest::keyClick(&edit, Qt::Key_Delete);
  Settle();
}

void WidgetHands::Key(Control& control, std::string_view character) {
  if (auto* const text_box = dynamic_cast<TextBox*>(&control)) {
    Type(*text_box, character);
    return;
  }
  const bool is_key =
      character.size() == 1 && character[0] >= kFirstPrintable && character[0] <= kLastPrintable;
  QWidget& widget = WidgetOf(control);
  if (!is_key || widget.focusPolicy() == Qt::NoFocus) return;
  widget.setFocus();
  SendKey(widget, ToQt(character));
  Settle();
}

void WidgetHands::Pick(ComboBox& list, int position) {
  auto& combo = dynamic_cast<QComboBox&>(WidgetOf(list));
  combo.setFocus();
  combo.showPopup();
  combo.view()->setCurrentIndex(combo.model()->index(position, 0));
  QTest::keyClick(combo.view(), Qt::Key_Return);
  Settle();
}

void WidgetHands::Drag(Grid& grid, Cell from, Cell to) {
  auto& view = dynamic_cast<GridView&>(WidgetOf(grid));
  if (from.row < grid.FixedRows()) {
    const QHeaderView& heading = *view.horizontalHeader();
    const QPoint place(heading.sectionViewportPosition(from.column) + 1, heading.height() / 2);
    QTest::mouseClick(heading.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    Settle();
    return;
  }
  QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOf(view, from));
  const QPoint end = PlaceOf(view, to);
  MovePointer(*view.viewport(), end, Qt::LeftButton);
  QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, end);
  Settle();
}

void WidgetHands::Hover(Control& control) {
  if (dynamic_cast<MenuEntry*>(&control) != nullptr) return;  // no handler hears of it
  const auto found = shown_.find(dynamic_cast<const Form*>(&control));
  QWidget& widget = found == shown_.end() ? WidgetOf(control) : *found->second.window;
  MovePointer(widget, widget.rect().center());
  Settle();
}

void WidgetHands::HoverCell(Grid& grid, Cell cell) {
  auto& view = dynamic_cast<GridView&>(WidgetOf(grid));
  MovePointer(*view.viewport(), PlaceOf(view, cell));
  Settle();
}

// A button that has been clicked last has the focus, and would be what Enter presses.
void WidgetHands::Enter(Form& form) {
  QWidget& window = *shown_.at(&form).window;
  if (qobject_cast<QPushButton*>(window.focusWidget()) != nullptr)
    window.focusWidget()->clearFocus();
  PressKey(window, Qt::Key_Return);
  Settle();
}

void WidgetHands::Escape(Form& form) {
  PressKey(*shown_.at(&form).window, Qt::Key_Escape);
  Settle();
}

void WidgetHands::Close(Form& form) {
  shown_.at(&form).window->close();
  Settle();
}

}  // namespace quilla::robot
