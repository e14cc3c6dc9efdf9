#include "program/panel_menu.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace quilla {
namespace {

/// The entries on view, separators aside.
std::set<std::string> OnView(const Form& form) {
  std::set<std::string> names;
  for (const Control* control : form.controls()) {
    const auto* const entry = dynamic_cast<const MenuEntry*>(control);
    if (entry != nullptr && entry->visible() && !entry->is_separator()) names.insert(entry->name());
  }
  return names;
}

TEST(PanelMenuTest, EntriesThatServeNothingAreHiddenWithTheirMenus) {
  Form form("Form");
  PanelMenu menu(form);
  for (MenuEntry* entry : {&menu.NewOrigin, &menu.FindVariable, &menu.PortOption[2]}) {
    entry->Click = [] {};
  }
  menu.HideIdleEntries();
  EXPECT_EQ(OnView(form),
            (std::set<std::string>{"FileMenu", "NewFileMenu", "NewOrigin", "EditMenu", "FindEdit",
                                   "FindVariable", "OptionsMenu", "SelectPort", "PortOption"}));
  EXPECT_FALSE(menu.PortOption[0].visible());
}

TEST(PanelMenuTest, ShortcutsAreGivenOnce) {
  Form form("Form");
  const PanelMenu menu(form);
  std::set<std::string> shortcuts;
  for (const Control* control : form.controls()) {
    const auto* const entry = dynamic_cast<const MenuEntry*>(control);
    if (entry == nullptr || entry->shortcut().empty()) continue;
    EXPECT_TRUE(shortcuts.insert(entry->shortcut()).second) << entry->shortcut();
  }
  EXPECT_EQ(shortcuts.size(), 24);
}

}  // namespace
}  // namespace quilla
