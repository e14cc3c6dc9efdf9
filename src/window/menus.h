// Builds the menu bar of a form from its menu entries.
#ifndef QUILLA_WINDOW_MENUS_H_
#define QUILLA_WINDOW_MENUS_H_

#include <QMenuBar>

#include "window/form_mirror.h"

namespace quilla {

/// Fills `menu_bar` with the menus of the form, in order of creation. Entries out of sight are
/// there but not shown, and lines between nothing are left out.
void BuildMenus(FormMirror& mirror, QMenuBar& menu_bar);

}  // namespace quilla

#endif  // QUILLA_WINDOW_MENUS_H_
