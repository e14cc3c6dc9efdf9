#include "program/panel_menu.h"

namespace quilla {

PanelMenu::PanelMenu(Form& the_form) : form(the_form) {
  for (MenuEntry& option : PageOption) option.set_checkable(true);
  for (MenuEntry& option : PortOption) option.set_checkable(true);
  PageOption[0].set_checked(true);
  PortOption[0].set_checked(true);
}

}  // namespace quilla
