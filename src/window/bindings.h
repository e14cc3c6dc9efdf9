// The widgets that show the controls of a form: each is made for its control, shows the control's
// properties, and takes what the user does to it into the control. A widget holds nothing of its
// own; wherever Qt changes it first, it is brought back in line with its control.
#ifndef QUILLA_WINDOW_BINDINGS_H_
#define QUILLA_WINDOW_BINDINGS_H_

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <string_view>

#include "platform/button.h"
#include "platform/grid.h"
#include "platform/text_box.h"
#include "platform/text_list.h"
#include "window/form_mirror.h"
#include "window/grid_view.h"

namespace quilla {

/// Each makes the widget show the control from now on, under the control's name.
void Bind(FormMirror& mirror, Button& button, QAbstractButton& widget);
void Bind(FormMirror& mirror, Option& option, QRadioButton& widget);
void Bind(FormMirror& mirror, Label& label, QLabel& widget);
void Bind(FormMirror& mirror, TextBox& text_box, QLineEdit& widget);
void Bind(FormMirror& mirror, ComboBox& combo, QComboBox& widget);
void Bind(FormMirror& mirror, Box& box, QWidget& widget);
void Bind(FormMirror& mirror, Grid& grid, GridView& widget);
void Bind(FormMirror& mirror, MenuEntry& entry, QAction& action);

/// Makes, as a child of `parent`, the widget that shows the control of that name, and binds it.
QWidget* Make(FormMirror& mirror, QWidget* parent, std::string_view name,
              int index = Control::kNoIndex);
/// The same, in bold.
QWidget* MakeBold(FormMirror& mirror, QWidget* parent, std::string_view name,
                  int index = Control::kNoIndex);
/// The same for a button that is a key among many.
QWidget* MakeKey(FormMirror& mirror, QWidget* parent, std::string_view name, int index);
/// The same for a button that has the focus at times but is never on view.
void MakeOutOfSight(FormMirror& mirror, QWidget* parent, std::string_view name);
/// The same for a table.
GridView* MakeTable(FormMirror& mirror, QWidget* parent, std::string_view name);

}  // namespace quilla

#endif  // QUILLA_WINDOW_BINDINGS_H_
