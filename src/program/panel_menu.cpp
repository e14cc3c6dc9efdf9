#include "program/panel_menu.h"

#include <functional>

namespace quilla {

PanelMenu::PanelMenu(Form& form)
    : FileMenu(&form, "FileMenu", "&File"),
      NewFileMenu(&FileMenu, "NewFileMenu", "&New"),
      NewFile(&NewFileMenu, "NewFile", "&File", "Ctrl+N"),
      NewOrigin(&NewFileMenu, "NewOrigin", "&Origin", "Ctrl+Ins"),
      OpenFile(&FileMenu, "OpenFile", "&Open", "Ctrl+O"),
      SaveFile(&FileMenu, "SaveFile", "&Save", "Ctrl+S"),
      SaveAsFile(&FileMenu, "SaveAsFile", "Save &As"),
      Split8(&FileMenu, "Split8", MenuEntry::kSeparator),
      AssembleFile(&FileMenu, "AssembleFile", "Assem&ble", "Ctrl+A"),
      DownloadFile(&FileMenu, "DownloadFile", "Do&wnload"),
      Split13(&FileMenu, "Split13", MenuEntry::kSeparator),
      DisassembleFile(&FileMenu, "DisassembleFile", "&Disassemble", "Ctrl+D"),
      UploadFile(&FileMenu, "UploadFile", "&Upload"),
      Split1(&FileMenu, "Split1", MenuEntry::kSeparator),
      PrintOptions(&FileMenu, "PrintOptions", "Print Op&tions"),
      ViewPrintInfo(&PrintOptions, "ViewPrintInfo", "&View Print Information"),
      PrintComments(&PrintOptions, "PrintComments", "&Insert Comments"),
      PagePrint(&PrintOptions, "PagePrint", "&Pages"),
      PageOption{MenuEntry(&PagePrint, "PageOption", "&All Pages", {}, 0),
                 MenuEntry(&PagePrint, "PageOption", "&Odd Pages only", {}, 1),
                 MenuEntry(&PagePrint, "PageOption", "&Even Pages only", {}, 2)},
      PrintFile(&FileMenu, "PrintFile", "&Print", "Ctrl+P"),
      Split3(&FileMenu, "Split3", MenuEntry::kSeparator),
      QuitFile(&FileMenu, "QuitFile", "&Quit", "Ctrl+Q"),
      EditMenu(&form, "EditMenu", "&Edit"),
      CutEdit(&EditMenu, "CutEdit", "&Cut", "Ctrl+X"),
      CopyEdit(&EditMenu, "CopyEdit", "&Copy", "Ctrl+C"),
      PasteEdit(&EditMenu, "PasteEdit", "&Paste", "Ctrl+V"),
      DeleteEdit(&EditMenu, "DeleteEdit", "&Delete", "Del"),
      Split4(&EditMenu, "Split4", MenuEntry::kSeparator),
      PlaceLabelTool(&EditMenu, "PlaceLabelTool", "&Place Labels", "Shift+Ins"),
      FindEdit(&EditMenu, "FindEdit", "&Find"),
      FindLabel(&FindEdit, "FindLabel", "&Label"),
      FindVariable(&FindEdit, "FindVariable", "&Variable"),
      ReplaceEdit(&EditMenu, "ReplaceEdit", "&Replace"),
      ReplaceLabel(&ReplaceEdit, "ReplaceLabel", "&Labels"),
      ReplaceVariable(&ReplaceEdit, "ReplaceVariable", "&Variables"),
      ViewMenu(&form, "ViewMenu", "&View"),
      SimulationView(&ViewMenu, "SimulationView", "&Simulation Panel", "Ctrl+F5"),
      OptionsMenu(&form, "OptionsMenu", "&Options"),
      WriteMode(&OptionsMenu, "WriteMode", "&Write Mode", "Ctrl+W"),
      Split12(&OptionsMenu, "Split12", MenuEntry::kSeparator),
      SelectPort(&OptionsMenu, "SelectPort", "&Comm Port"),
      PortOption{MenuEntry(&SelectPort, "PortOption", "Comm&1", "Ctrl+F1", 0),
                 MenuEntry(&SelectPort, "PortOption", "Comm&2", "Ctrl+F2", 1),
                 MenuEntry(&SelectPort, "PortOption", "Comm&3", "Ctrl+F3", 2),
                 MenuEntry(&SelectPort, "PortOption", "Comm&4", "Ctrl+F4", 3)},
      Split14(&OptionsMenu, "Split14", MenuEntry::kSeparator),
      TipsOption(&OptionsMenu, "TipsOption", "Show/Hide &Tips", "Ctrl+T"),
      ToolsMenu(&form, "ToolsMenu", "&Tools"),
      DeleteLabels(&ToolsMenu, "DeleteLabels", "&Delete Labels"),
      DeleteUnusedLabels(&ToolsMenu, "DeleteUnusedLabels", "Trash &Unused Strings"),
      Split5(&ToolsMenu, "Split5", MenuEntry::kSeparator),
      CommentsTool(&ToolsMenu, "CommentsTool", "&Enter/Edit Comments", "F4"),
      Split6(&ToolsMenu, "Split6", MenuEntry::kSeparator),
      AssignAddress(&ToolsMenu, "AssignAddress", "&Assign Addresses", "F5"),
      EqtOption(&ToolsMenu, "EqtOption", "Assign &Equivalents", "F6"),
      Split11(&ToolsMenu, "Split11", MenuEntry::kSeparator),
      EntryMode(&ToolsMenu, "EntryMode", "Data &Mode", "Ctrl+M"),
      form_(form) {
  for (MenuEntry& option : PageOption) option.set_checkable(true);
  for (MenuEntry& option : PortOption) option.set_checkable(true);
  PageOption[0].set_checked(true);
  PortOption[0].set_checked(true);
}

void PanelMenu::HideIdleEntries() {
  const auto& controls = form_.controls();
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
