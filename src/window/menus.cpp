#include "window/menus.h"

#include <QCoreApplication>
#include <QHash>
#include <QKeyEvent>
#include <QMenu>

#include "platform/button.h"
#include "window/bindings.h"

namespace quilla {
namespace {

/// A menu of the bar: Esc out of it leaves the bar too, and gives the focus back.
class BarMenu final : public QMenu {
 public:
  explicit BarMenu(QMenuBar& bar) : QMenu(&bar), bar_(bar) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool is_escape = event->key() == Qt::Key_Escape;
    QMenu::keyPressEvent(event);
    if (!is_escape || isVisible()) return;
    QKeyEvent leave(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&bar_, &leave);
  }

 private:
  QMenuBar& bar_;
};

}  // namespace

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
      auto* const menu = parent == nullptr ? new BarMenu(menu_bar) : new QMenu(parent);
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
