#include "window/widgets.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "window/grid_view.h"
#include "window/key_button.h"

namespace quilla {
namespace {

constexpr QRect kOutOfSight(-1000, -1000, 1, 1);

template <typename Model, typename Widget>
QWidget* BindTo(FormMirror& mirror, Model& model, Widget* widget) {
  mirror.Bind(model, *widget);
  return widget;
}

QLineEdit* MakeLineEdit(const TextBox& text_box, QWidget* parent) {
  auto* const edit = new QLineEdit(parent);
  if (text_box.max_length() > 0) edit->setAlignment(Qt::AlignHCenter);
  return edit;
}

}  // namespace

QWidget* WidgetMaker::Make(Control& control, ButtonShape shape) const {
  if (auto* const button = dynamic_cast<Button*>(&control)) {
    QPushButton* const widget =
        shape == ButtonShape::kKey ? new KeyButton(parent_) : new PanelButton(parent_);
    return BindTo(mirror_, *button, widget);
  }
  if (auto* const option = dynamic_cast<Option*>(&control)) {
    return BindTo(mirror_, *option, new QRadioButton(parent_));
  }
  if (auto* const label = dynamic_cast<Label*>(&control)) {
    return BindTo(mirror_, *label, new QLabel(parent_));
  }
  if (auto* const text_box = dynamic_cast<TextBox*>(&control)) {
    return BindTo(mirror_, *text_box, MakeLineEdit(*text_box, parent_));
  }
  if (auto* const combo = dynamic_cast<ComboBox*>(&control)) {
    return BindTo(mirror_, *combo, new QComboBox(parent_));
  }
  if (auto* const grid = dynamic_cast<Grid*>(&control)) {
    return BindTo(mirror_, *grid, new GridView(mirror_.gate(), *grid, parent_));
  }
  return nullptr;
}

QWidget* WidgetMaker::Make(std::string_view name, int index, ButtonShape shape) const {
  Control* const control = mirror_.form().Find(name, index);
  return control == nullptr ? nullptr : Make(*control, shape);
}

QWidget* WidgetMaker::MakeBold(std::string_view name, int index) const {
  QWidget* const widget = Make(name, index);
  if (widget == nullptr) return nullptr;
  QFont font = widget->font();
  font.setBold(true);
  widget->setFont(font);
  return widget;
}

QWidget* WidgetMaker::MakeOutOfSight(std::string_view name) const {
  QWidget* const widget = Make(name);
  if (widget == nullptr) return nullptr;
  widget->setGeometry(kOutOfSight);
  widget->setFocusPolicy(Qt::ClickFocus);
  return widget;
}

}  // namespace quilla
