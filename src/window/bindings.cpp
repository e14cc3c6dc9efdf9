#include "window/bindings.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <functional>
#include <limits>
#include <memory>
#include <utility>

#include "window/accessible_names.h"
#include "window/colors.h"
#include "window/entries_model.h"
#include "window/key_button.h"
#include "window/key_router.h"
#include "window/qt_text.h"

namespace quilla {
namespace {

constexpr QRect kOutOfSight(-1000, -1000, 1, 1);

/// Keeps a widget or an action in line with its control. It lives as long as what shows the
/// control; the control lives longer.
class Mirror final : public QObject, private ControlObserver {
  Q_DISABLE_COPY_MOVE(Mirror)

 public:
  using Refresh = std::function<void(Property)>;

  Mirror(Control& control, QObject& shown_by, Refresh refresh)
      : QObject(&shown_by), control_(control), refresh_(std::move(refresh)) {
    shown_by.setObjectName(WidgetName(control.name(), control.index()));
    control_.observer = this;
    for (int property = 0; property <= static_cast<int>(Property::kDefault); ++property) {
      refresh_(static_cast<Property>(property));
    }
  }
  ~Mirror() override { control_.observer = nullptr; }

  /// Hears of the widget's events before the widget; true keeps one from it.
  void Watch(std::function<bool(const QEvent&)> on_event) {
    on_event_ = std::move(on_event);
    parent()->installEventFilter(this);
  }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override { return on_event_(*event); }

 private:
  void PropertyChanged(Property property) override { refresh_(property); }

  Control& control_;
  Refresh refresh_;
  std::function<bool(const QEvent&)> on_event_;
};

/// Shows on a widget what every control has, and by `refresh` what its kind has besides.
Mirror& Show(
    FormMirror& form, Control& control, QWidget& widget,
    Mirror::Refresh refresh = [](Property) {}) {
  form.Register(control, widget);
  widget.setToolTip(ToQt(control.tool_tip()));
  widget.setAccessibleName(AccessibleNameOf(control));
  return *new Mirror(control, widget, [&, refresh = std::move(refresh)](Property property) {
    if (property == Property::kEnabled) {
      widget.setEnabled(control.enabled());
    } else if (property == Property::kVisible) {
      widget.setVisible(control.visible());
    } else {
      refresh(property);
    }
  });
}

/// A live input has the ground of a text, an idle one that of the window.
void ShowActive(QWidget& widget, bool active) {
  QPalette palette;
  if (!active) {
    palette.setBrush(QPalette::Base, palette.brush(QPalette::Active, QPalette::Window));
  }
  widget.setPalette(palette);
}

void ShowColor(const Label& label, QLabel& widget) {
  QPalette palette;
  if (label.color() != 0) {
    palette.setColor(QPalette::WindowText,
                     ReadableOn(palette.color(QPalette::Window), FromBlueGreenRed(label.color())));
  }
  widget.setPalette(palette);
}

void ShowText(const TextBox& text_box, QLineEdit& widget) {
  const QString text = ToQt(text_box.text());
  if (text == widget.text()) return;
  const int cursor = widget.cursorPosition();
  widget.setText(text);
  widget.setCursorPosition(std::min(cursor, static_cast<int>(text.size())));
}

bool IsPress(const QEvent& event) {
  return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
}

// A button that acts while it is held is held from the press of either mouse button until that one
// is let go, wherever the pointer is then. A key holds it in Qt's own way.
void BindHolding(Gate& gate, Button& button, QAbstractButton& widget, Mirror& shown) {
  widget.setProperty(kActsWhileHeld, true);
  QObject::connect(&widget, &QAbstractButton::pressed, &shown,
                   [&] { gate.Enter([&] { button.Press(); }); });
  QObject::connect(&widget, &QAbstractButton::released, &shown,
                   [&] { gate.Enter([&] { button.Release(); }); });
  const auto holding = std::make_shared<Qt::MouseButton>(Qt::NoButton);
  const auto set_held = [&, holding](Qt::MouseButton by) {
    *holding = by;
    widget.setDown(by != Qt::NoButton);
    gate.Enter([&] { by == Qt::NoButton ? button.Release() : button.Press(); });
  };
  shown.Watch([&, holding, set_held](const QEvent& event) {
    const bool is_held = *holding != Qt::NoButton;
    if (event.type() == QEvent::Hide && is_held) set_held(Qt::NoButton);
    if (event.type() == QEvent::MouseMove) return is_held;
    if (!IsPress(event) && event.type() != QEvent::MouseButtonRelease) return false;
    const Qt::MouseButton by = static_cast<const QMouseEvent&>(event).button();
    if (IsPress(event) && !is_held && (by == Qt::LeftButton || by == Qt::RightButton)) {
      set_held(by);
    } else if (!IsPress(event) && is_held && by == *holding) {
      set_held(Qt::NoButton);
    }
    return true;
  });
}

// The arrows choose the next option or the one before. Qt's own way would take the focus back from
// where choosing has put it.
bool ChooseByArrow(const QRadioButton& from, const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  const bool back = key == Qt::Key_Up || key == Qt::Key_Left;
  if (!back && key != Qt::Key_Down && key != Qt::Key_Right) return false;
  auto options =
      from.parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
  if (back) std::reverse(options.begin(), options.end());
  const auto next = std::find_if(
      std::find(options.begin(), options.end(), &from) + 1, options.end(),
      [](const QRadioButton* option) { return option->isVisible() && option->isEnabled(); });
  if (next == options.end()) return true;
  (*next)->setFocus(back ? Qt::BacktabFocusReason : Qt::TabFocusReason);
  (*next)->click();
  return true;
}

bool IsClick(const QEvent& event, const QWidget& widget) {
  if (event.type() != QEvent::MouseButtonRelease) return false;
  const auto& mouse = static_cast<const QMouseEvent&>(event);
  return mouse.button() == Qt::LeftButton && widget.rect().contains(mouse.pos());
}

}  // namespace

void Bind(FormMirror& mirror, Button& button, QAbstractButton& widget) {
  Gate& gate = mirror.gate();
  Mirror& shown = Show(mirror, button, widget, [&](Property property) {
    if (property != Property::kCaption) return;
    widget.setText(ToQt(button.caption()));
    // A key with another name than its caption shows its state by that.
    if (!widget.accessibleName().isEmpty()) widget.setAccessibleDescription(widget.text());
  });
  QObject::connect(&widget, &QAbstractButton::clicked, &shown,
                   [&] { gate.Enter([&] { button.Choose(); }); });
  if (button.MouseDown || button.MouseUp) BindHolding(gate, button, widget, shown);
}

void Bind(FormMirror& mirror, Option& option, QRadioButton& widget) {
  Mirror& shown = Show(mirror, option, widget, [&](Property property) {
    if (property == Property::kCaption) widget.setText(ToQt(option.caption()));
    if (property == Property::kChecked) widget.setChecked(option.checked());
  });
  QObject::connect(&widget, &QRadioButton::clicked, &shown, [&] {
    mirror.gate().Enter([&] { option.Choose(); });
    widget.setChecked(option.checked());
  });
  shown.Watch([&widget](const QEvent& event) { return ChooseByArrow(widget, event); });
}

void Bind(FormMirror& mirror, Label& label, QLabel& widget) {
  widget.setTextFormat(Qt::PlainText);
  Mirror& shown = Show(mirror, label, widget, [&](Property property) {
    if (property == Property::kCaption) widget.setText(LabelText(label.caption()));
    if (property == Property::kColor) ShowColor(label, widget);
  });
  if (!label.Click) return;
  widget.setCursor(Qt::PointingHandCursor);
  shown.Watch([&](const QEvent& event) {
    if (!IsClick(event, widget) || !label.IsEnabled()) return false;
    mirror.gate().Enter([&] { label.Choose(); });
    return true;
  });
}

void Bind(FormMirror& mirror, TextBox& text_box, QLineEdit& widget) {
  // A line of Qt's own length would cut what a file may hold.
  widget.setMaxLength(text_box.max_length() > 0 ? text_box.max_length()
                                                : std::numeric_limits<int>::max());
  Mirror& shown = Show(mirror, text_box, widget, [&](Property property) {
    if (property == Property::kText) ShowText(text_box, widget);
    if (property == Property::kActive) ShowActive(widget, text_box.active());
  });
  // Where the box takes less than was typed, the cursor stays before what stood behind it.
  QObject::connect(&widget, &QLineEdit::textEdited, &shown, [&](const QString& text) {
    const auto behind = text.size() - widget.cursorPosition();
    mirror.gate().Enter([&] { text_box.Edit(FromQt(text)); });
    ShowText(text_box, widget);
    const QString left = widget.text();
    if (left == text) return;
    widget.setCursorPosition(static_cast<int>(std::max<qsizetype>(left.size() - behind, 0)));
  });
}

// A list may change thousands of times while nobody sees it: its entries are brought in line when a
// handler is over and the list is on view.
void Bind(FormMirror& mirror, ComboBox& combo, QComboBox& widget) {
  auto* const entries = new EntriesModel(combo, &widget);
  widget.setModel(entries);
  const auto outdated = std::make_shared<bool>(true);
  Mirror& shown = Show(mirror, combo, widget, [&, outdated](Property property) {
    if (property == Property::kItems || property == Property::kIndex) *outdated = true;
    if (property == Property::kActive) ShowActive(widget, combo.active());
  });
  const auto bring_in_line = [&, entries, outdated] {
    if (!std::exchange(*outdated, false)) return;
    entries->Renew();
    widget.setCurrentIndex(combo.index());
  };
  QObject::connect(&widget, &QComboBox::activated, &shown, [&](int position) {
    mirror.gate().Enter([&] { combo.Pick(position); });
    widget.setCurrentIndex(combo.index());
  });
  QObject::connect(&mirror.gate(), &Gate::Left, &shown, [&, bring_in_line] {
    if (widget.isVisible()) bring_in_line();
  });
  shown.Watch([bring_in_line](const QEvent& event) {
    if (event.type() == QEvent::Show) bring_in_line();
    return false;
  });
}

void Bind(FormMirror& mirror, Box& box, QWidget& widget) { Show(mirror, box, widget); }

void Bind(FormMirror& mirror, Grid& grid, GridView& widget) { Show(mirror, grid, widget); }

void Bind(FormMirror& mirror, MenuEntry& entry, QAction& action) {
  mirror.Register(entry, action);
  action.setMenuRole(QAction::NoRole);
  action.setSeparator(entry.is_separator());
  action.setCheckable(entry.checkable());
  action.setShortcut(QKeySequence(ToQt(entry.shortcut())));
  auto* const shown = new Mirror(entry, action, [&](Property property) {
    if (property == Property::kCaption && !entry.is_separator()) {
      action.setText(ToQt(entry.caption()));
    } else if (property == Property::kEnabled) {
      action.setEnabled(entry.enabled());
    } else if (property == Property::kVisible) {
      action.setVisible(entry.visible());
    } else if (property == Property::kChecked) {
      action.setChecked(entry.checked());
    }
  });
  QObject::connect(&action, &QAction::triggered, shown, [&] {
    mirror.gate().Enter([&] { entry.Choose(); });
    action.setChecked(entry.checked());
  });
}

QWidget* Make(FormMirror& mirror, QWidget* parent, std::string_view name, int index) {
  auto& control = mirror.Get(name, index);
  const auto bind = [&](auto& model, auto* widget) -> QWidget* {
    Bind(mirror, model, *widget);
    return widget;
  };
  if (auto* const option = dynamic_cast<Option*>(&control)) {
    return bind(*option, new QRadioButton(parent));
  }
  if (auto* const label = dynamic_cast<Label*>(&control)) return bind(*label, new QLabel(parent));
  if (auto* const text_box = dynamic_cast<TextBox*>(&control)) {
    auto* const edit = new QLineEdit(parent);
    if (text_box->max_length() > 0) edit->setAlignment(Qt::AlignHCenter);
    return bind(*text_box, edit);
  }
  if (auto* const combo = dynamic_cast<ComboBox*>(&control)) {
    return bind(*combo, new QComboBox(parent));
  }
  return bind(mirror.Get<Button>(name, index), new PanelButton(parent));
}

QWidget* MakeBold(FormMirror& mirror, QWidget* parent, std::string_view name, int index) {
  QWidget* const widget = Make(mirror, parent, name, index);
  QFont font = widget->font();
  font.setBold(true);
  widget->setFont(font);
  return widget;
}

QWidget* MakeKey(FormMirror& mirror, QWidget* parent, std::string_view name, int index) {
  auto* const key = new KeyButton(parent);
  Bind(mirror, mirror.Get<Button>(name, index), *key);
  return key;
}

void MakeOutOfSight(FormMirror& mirror, QWidget* parent, std::string_view name) {
  QWidget* const widget = Make(mirror, parent, name);
  widget->setGeometry(kOutOfSight);
  widget->setFocusPolicy(Qt::ClickFocus);
}

GridView* MakeTable(FormMirror& mirror, QWidget* parent, std::string_view name) {
  auto& grid = mirror.Get<Grid>(name);
  auto* const table = new GridView(mirror.gate(), grid, parent);
  Bind(mirror, grid, *table);
  return table;
}

}  // namespace quilla
