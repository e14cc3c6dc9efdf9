#include "window/menus.h"

#include <QHash>
#include <QMenu>

#include "platform/button.h"
#include "window/bindings.h"

namespace quilla {

void BuildMenus(FormMirror& mirror, QMenuBar& menu_bar) {
  std::vector<MenuEntry*> entries;
  QHash<const Control*, QMenu*> menus;  // by the entry that opens the menu
  for (Control* control : mirror.form().controls()) {
    auto* const entry = dynamic_cast<MenuEntry*>(control);
    if (entry == nullptr) continue;
    entries.push_back(entry);
    if (entry->container() != &mirror.form()) menus.insert(entry->container(), nullptr);
  }
  for (MenuEntry* entry : entries) {
    QMenu* const parent = menus.value(entry->container());
    QWidget& place = parent == nullptr ? static_cast<QWidget&>(menu_bar) : *parent;
    QAction* action = nullptr;
    if (menus.contains(entry)) {
      auto* const menu = new QMenu(&place);
      menu->setSeparatorsCollapsible(true);
      menus[entry] = menu;
      action = menu->menuAction();
    } else {
      action = new QAction(&place);
    }
    Bind(mirror, *entry, *action);
    place.addAction(action);
  }
}

}  // namespace quilla
