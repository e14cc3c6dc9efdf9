#include "program/panel_menu.h"

#include <functional>

namespace quilla {

PanelMenu::PanelMenu(Form& the_form) : form(the_form) {
  for (MenuEntry& option : PageOption) option.set_checkable(true);
  for (MenuEntry& option : PortOption) option.set_checkable(true);
  PageOption[0].set_checked(true);
  PortOption[0].set_checked(true);
}

void PanelMenu::HideIdleEntries() {
  const auto& controls = form.controls();
  const std::function<bool(const MenuEntry&)> serves = [&](const MenuEntry& entry) {
    if (entry.Click || entry.is_separator()) return true;
    for (const Control* control : controls) {
      const auto* const below = dynamic_cast<const MenuEntry*>(control);
      if (below != nullptr && below->container() == &entry && !below->is_separator() &&
          serves(*below)) {
        return true;
      }
    }
    return false;
  };
  for (Control* control : controls) {
    auto* const entry = dynamic_cast<MenuEntry*>(control);
    if (entry != nullptr && !serves(*entry)) entry->Hide();
  }
}

}  // namespace quilla
