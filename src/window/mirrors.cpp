#include "window/mirrors.h"

#include <QEvent>
#include <QMouseEvent>
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "window/colors.h"
#include "window/qt_text.h"

namespace quilla {
namespace {

/// A live input has the ground of a text, an idle one that of the window.
void ShowActive(QWidget& widget, bool active) {
  QPalette palette;
  if (!active) {
    palette.setBrush(QPalette::Base, widget.palette().brush(QPalette::Active, QPalette::Window));
  }
  widget.setPalette(palette);
}

}  // namespace

WidgetMirror::WidgetMirror(Gate& gate, Control& control, QWidget& widget)
    : QObject(&widget), gate_(gate), control_(control), widget_(widget) {
  control_.observer = this;
  widget_.setObjectName(WidgetName(control_.name(), control_.index()));
  widget_.setToolTip(ToQt(control_.tool_tip()));
  widget_.setEnabled(control_.enabled());
  widget_.setVisible(control_.visible());
}

WidgetMirror::~WidgetMirror() { control_.observer = nullptr; }

void WidgetMirror::PropertyChanged(Property property) {
  if (property == Property::kEnabled) {
    widget_.setEnabled(control_.enabled());
  } else if (property == Property::kVisible) {
    widget_.setVisible(control_.visible());
  } else {
    Refresh(property);
  }
}

ButtonMirror::ButtonMirror(Gate& gate, Button& button, QAbstractButton& widget)
    : WidgetMirror(gate, button, widget), button_(button), widget_(widget) {
  Refresh(Property::kCaption);
  connect(&widget, &QAbstractButton::pressed, this,
          [this] { gate_.Enter([this] { button_.Press(); }); });
  connect(&widget, &QAbstractButton::released, this,
          [this] { gate_.Enter([this] { button_.Release(); }); });
  connect(&widget, &QAbstractButton::clicked, this,
          [this] { gate_.Enter([this] { button_.Choose(); }); });
  if (button_.MouseDown || button_.MouseUp) widget.installEventFilter(this);
}

bool ButtonMirror::eventFilter(QObject* /*watched*/, QEvent* event) {
  const bool press =
      event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
  if (!press && event->type() != QEvent::MouseButtonRelease) return false;
  if (static_cast<const QMouseEvent*>(event)->button() != Qt::RightButton) return false;
  gate_.Enter([&] { press ? button_.Press() : button_.Release(); });
  return true;
}

void ButtonMirror::Refresh(Property property) {
  if (property == Property::kCaption) widget_.setText(ToQt(button_.caption()));
}

OptionMirror::OptionMirror(Gate& gate, Option& option, QRadioButton& widget)
    : WidgetMirror(gate, option, widget), option_(option), widget_(widget) {
  Refresh(Property::kCaption);
  Refresh(Property::kChecked);
  connect(&widget, &QRadioButton::clicked, this, [this] {
    gate_.Enter([this] { option_.Choose(); });
    widget_.setChecked(option_.checked());
  });
}

void OptionMirror::Refresh(Property property) {
  if (property == Property::kCaption) widget_.setText(ToQt(option_.caption()));
  if (property == Property::kChecked) widget_.setChecked(option_.checked());
}

LabelMirror::LabelMirror(Gate& gate, Label& label, QLabel& widget)
    : WidgetMirror(gate, label, widget), label_(label), widget_(widget) {
  widget_.setTextFormat(Qt::PlainText);
  Refresh(Property::kCaption);
  ShowColor();
  if (label_.Click) widget_.setCursor(Qt::PointingHandCursor);
  widget_.installEventFilter(this);
}

void LabelMirror::Refresh(Property property) {
  if (property == Property::kCaption) widget_.setText(LabelText(label_.caption()));
  if (property == Property::kColor) ShowColor();
}

void LabelMirror::ShowColor() {
  QPalette palette;
  if (label_.color() != 0) {
    palette.setColor(QPalette::WindowText,
                     ReadableOn(palette.color(QPalette::Window), FromBlueGreenRed(label_.color())));
  }
  widget_.setPalette(palette);
}

bool LabelMirror::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() != QEvent::MouseButtonRelease || !label_.Click) return false;
  const auto* const mouse = static_cast<QMouseEvent*>(event);
  if (mouse->button() != Qt::LeftButton || !widget_.rect().contains(mouse->pos()) ||
      !label_.IsEnabled()) {
    return false;
  }
  gate_.Enter([this] { label_.Choose(); });
  return true;
}

TextBoxMirror::TextBoxMirror(Gate& gate, TextBox& text_box, QLineEdit& widget)
    : WidgetMirror(gate, text_box, widget), text_box_(text_box), widget_(widget) {
  if (text_box_.max_length() > 0) widget_.setMaxLength(text_box_.max_length());
  ShowText();
  Refresh(Property::kActive);
  connect(&widget, &QLineEdit::textEdited, this, [this](const QString& text) {
    gate_.Enter([&] { text_box_.Edit(FromQt(text)); });
    ShowText();
  });
}

void TextBoxMirror::Refresh(Property property) {
  if (property == Property::kText) ShowText();
  if (property == Property::kActive) ShowActive(widget_, text_box_.active());
}

void TextBoxMirror::ShowText() {
  const QString text = ToQt(text_box_.text());
  if (text == widget_.text()) return;
  const int cursor = widget_.cursorPosition();
  widget_.setText(text);
  widget_.setCursorPosition(std::min(cursor, static_cast<int>(text.size())));
}

ComboBoxMirror::ComboBoxMirror(Gate& gate, ComboBox& combo, QComboBox& widget)
    : WidgetMirror(gate, combo, widget), combo_(combo), widget_(widget) {
  Refresh(Property::kActive);
  connect(&widget, &QComboBox::activated, this, [this](int position) {
    gate_.Enter([&] { combo_.Pick(position); });
    widget_.setCurrentIndex(combo_.index());
  });
  connect(&gate_, &Gate::Left, this, [this] {
    if (widget_.isVisible()) ShowEntries();
  });
  widget_.installEventFilter(this);
}

bool ComboBoxMirror::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::Show) ShowEntries();
  return false;
}

void ComboBoxMirror::Refresh(Property property) {
  if (property == Property::kItems || property == Property::kIndex) outdated_ = true;
  if (property == Property::kActive) ShowActive(widget_, combo_.active());
}

void ComboBoxMirror::ShowEntries() {
  if (!std::exchange(outdated_, false)) return;
  QStringList entries;
  entries.reserve(combo_.Count());
  for (const std::string& item : combo_.items()) entries << ToQt(item);
  widget_.clear();
  widget_.addItems(entries);
  widget_.setCurrentIndex(combo_.index());
}

MenuEntryMirror::MenuEntryMirror(Gate& gate, MenuEntry& entry, QAction& action)
    : QObject(&action), entry_(entry), action_(action) {
  entry_.observer = this;
  action_.setObjectName(WidgetName(entry_.name(), entry_.index()));
  action_.setMenuRole(QAction::NoRole);
  action_.setCheckable(entry_.checkable());
  if (entry_.is_separator()) {
    action_.setSeparator(true);
  } else if (!entry_.shortcut().empty()) {
    action_.setShortcut(QKeySequence(ToQt(entry_.shortcut())));
  }
  for (const Property property :
       {Property::kCaption, Property::kEnabled, Property::kVisible, Property::kChecked}) {
    PropertyChanged(property);
  }
  connect(&action_, &QAction::triggered, this, [this, &gate] {
    gate.Enter([this] { entry_.Choose(); });
    PropertyChanged(Property::kChecked);
  });
}

MenuEntryMirror::~MenuEntryMirror() { entry_.observer = nullptr; }

void MenuEntryMirror::PropertyChanged(Property property) {
  if (property == Property::kCaption && !entry_.is_separator()) {
    action_.setText(ToQt(entry_.caption()));
  } else if (property == Property::kEnabled) {
    action_.setEnabled(entry_.enabled());
  } else if (property == Property::kVisible) {
    action_.setVisible(entry_.visible());
  } else if (property == Property::kChecked && entry_.checkable()) {
    action_.setChecked(entry_.checked());
  }
}

}  // namespace quilla
