#include "window/widget_check.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "platform/text_box.h"
#include "platform/text_list.h"
#include "window/grid_view.h"
#include "window/qt_text.h"

namespace quilla {
namespace {

class Check {
 public:
  explicit Check(const Control& control) : name_(WidgetName(control.name(), control.index())) {}

  template <typename T>
  void Same(const char* property, const T& shown, const T& wanted) {
    if (shown != wanted) lines << name_ + " shows another " + property;
  }

  QStringList lines;

 private:
  QString name_;
};

void CheckGrid(Check& check, const Grid& grid, const QWidget& widget) {
  const auto& view = dynamic_cast<const GridView&>(widget);
  const QAbstractItemModel& model = *view.model();
  check.Same("number of rows", model.rowCount(), grid.Rows());
  check.Same("number of row places", view.verticalHeader()->count(), grid.Rows());
  const int rows = std::min(model.rowCount(), grid.Rows());
  for (int row = 0; row < rows; row += 1 + rows / 1000) {  // not each one of a whole memory
    for (int column = 0; column < grid.Cols(); ++column) {
      check.Same("cell", model.index(row, column).data().toString(),
                 ToQt(grid.TextMatrix(row, column)));
    }
  }
}

void CheckCombo(Check& check, const ComboBox& combo, const QWidget& widget) {
  const auto& box = dynamic_cast<const QComboBox&>(widget);
  QStringList shown;
  for (int i = 0; i < box.count(); ++i) shown << box.itemText(i);
  QStringList wanted;
  for (const std::string& item : combo.items()) wanted << ToQt(item);
  check.Same("list", shown, wanted);
  check.Same("choice", box.currentIndex(), combo.index());
}

void CheckWidget(Check& check, const Control& control, const QWidget& widget) {
  check.Same("visible", widget.isVisible(), control.IsVisible());
  check.Same("enabled", widget.isEnabled(), control.IsEnabled());
  if (const auto* const option = dynamic_cast<const Option*>(&control)) {
    check.Same("checked", dynamic_cast<const QAbstractButton&>(widget).isChecked(),
               option->checked());
  }
  if (const auto* const button = dynamic_cast<const Button*>(&control)) {
    check.Same("default", dynamic_cast<const QPushButton&>(widget).isDefault(),
               control.form()->default_button() == button);
  }
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
    check.Same("caption", button->text(), ToQt(control.caption()));
  } else if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
    check.Same("caption", label->text(), LabelText(control.caption()));
  } else if (const auto* const text_box = dynamic_cast<const TextBox*>(&control)) {
    check.Same("text", dynamic_cast<const QLineEdit&>(widget).text(), ToQt(text_box->text()));
  } else if (const auto* const combo = dynamic_cast<const ComboBox*>(&control)) {
    if (widget.isVisible()) CheckCombo(check, *combo, widget);
  } else if (const auto* const grid = dynamic_cast<const Grid*>(&control)) {
    CheckGrid(check, *grid, widget);
  }
}

void CheckEntry(Check& check, const MenuEntry& entry, const QAction& action) {
  check.Same("visible", action.isVisible(), entry.visible());
  check.Same("kind", action.isSeparator(), entry.is_separator());
  if (entry.visible()) check.Same("enabled", action.isEnabled(), entry.enabled());
  if (!entry.is_separator()) check.Same("caption", action.text(), ToQt(entry.caption()));
  if (entry.checkable()) check.Same("checked", action.isChecked(), entry.checked());
}

}  // namespace

QStringList DifferencesFromModels(FormMirror& mirror, const QWidget& window) {
  Check title(mirror.form());
  title.Same("title", window.windowTitle(), ToQt(mirror.form().caption()));
  QStringList lines = title.lines;
  for (const Control* control : mirror.form().controls()) {
    Check check(*control);
    const QWidget* const widget = mirror.WidgetOf(*control);
    if (const auto* const entry = dynamic_cast<const MenuEntry*>(control)) {
      CheckEntry(check, *entry, *mirror.ActionOf(*entry));
    } else if (widget != nullptr) {
      CheckWidget(check, *control, *widget);
    } else {
      check.Same("visible", false, control->IsVisible());
    }
    lines << check.lines;
  }
  return lines;
}

}  // namespace quilla
