// The menu bar of the main panel: every entry with its caption and shortcut, in order.
#ifndef QUILLA_PROGRAM_PANEL_MENU_H_
#define QUILLA_PROGRAM_PANEL_MENU_H_

#include <array>

#include "platform/button.h"
#include "platform/form.h"

namespace quilla {

struct PanelMenu {
  explicit PanelMenu(Form& the_form);

  Form& form;

  MenuEntry FileMenu{&form, "FileMenu", "&File"};
  MenuEntry NewFileMenu{&FileMenu, "NewFileMenu", "&New"};
  MenuEntry NewFile{&NewFileMenu, "NewFile", "&File", "Ctrl+N"};
  MenuEntry NewOrigin{&NewFileMenu, "NewOrigin", "&Origin", "Ctrl+Ins"};
  MenuEntry OpenFile{&FileMenu, "OpenFile", "&Open", "Ctrl+O"};
  MenuEntry SaveFile{&FileMenu, "SaveFile", "&Save", "Ctrl+S"};
  MenuEntry SaveAsFile{&FileMenu, "SaveAsFile", "Save &As"};
  MenuEntry Split8{&FileMenu, "Split8", MenuEntry::kSeparator};
  MenuEntry AssembleFile{&FileMenu, "AssembleFile", "Assem&ble", "Ctrl+A"};
  MenuEntry DownloadFile{&FileMenu, "DownloadFile", "Do&wnload"};
  MenuEntry Split13{&FileMenu, "Split13", MenuEntry::kSeparator};
  MenuEntry DisassembleFile{&FileMenu, "DisassembleFile", "&Disassemble", "Ctrl+D"};
  MenuEntry UploadFile{&FileMenu, "UploadFile", "&Upload"};
  MenuEntry Split1{&FileMenu, "Split1", MenuEntry::kSeparator};
  MenuEntry PrintOptions{&FileMenu, "PrintOptions", "Print Op&tions"};
  MenuEntry ViewPrintInfo{&PrintOptions, "ViewPrintInfo", "&View Print Information"};
  MenuEntry PrintComments{&PrintOptions, "PrintComments", "&Insert Comments"};
  MenuEntry PagePrint{&PrintOptions, "PagePrint", "&Pages"};
  std::array<MenuEntry, 3> PageOption{
      MenuEntry(&PagePrint, "PageOption", "&All Pages", {}, 0),
      MenuEntry(&PagePrint, "PageOption", "&Odd Pages only", {}, 1),
      MenuEntry(&PagePrint, "PageOption", "&Even Pages only", {}, 2)};
  MenuEntry PrintFile{&FileMenu, "PrintFile", "&Print", "Ctrl+P"};
  MenuEntry Split3{&FileMenu, "Split3", MenuEntry::kSeparator};
  MenuEntry QuitFile{&FileMenu, "QuitFile", "&Quit", "Ctrl+Q"};

  MenuEntry EditMenu{&form, "EditMenu", "&Edit"};
  MenuEntry CutEdit{&EditMenu, "CutEdit", "&Cut", "Ctrl+X"};
  MenuEntry CopyEdit{&EditMenu, "CopyEdit", "&Copy", "Ctrl+C"};
  MenuEntry PasteEdit{&EditMenu, "PasteEdit", "&Paste", "Ctrl+V"};
  MenuEntry DeleteEdit{&EditMenu, "DeleteEdit", "&Delete", "Del"};
  MenuEntry Split4{&EditMenu, "Split4", MenuEntry::kSeparator};
  MenuEntry PlaceLabelTool{&EditMenu, "PlaceLabelTool", "&Place Labels", "Shift+Ins"};
  MenuEntry FindEdit{&EditMenu, "FindEdit", "&Find"};
  MenuEntry FindLabel{&FindEdit, "FindLabel", "&Label"};
  MenuEntry FindVariable{&FindEdit, "FindVariable", "&Variable"};
  MenuEntry ReplaceEdit{&EditMenu, "ReplaceEdit", "&Replace"};
  MenuEntry ReplaceLabel{&ReplaceEdit, "ReplaceLabel", "&Labels"};
  MenuEntry ReplaceVariable{&ReplaceEdit, "ReplaceVariable", "&Variables"};

  MenuEntry ViewMenu{&form, "ViewMenu", "&View"};
  MenuEntry SimulationView{&ViewMenu, "SimulationView", "&Simulation Panel", "Ctrl+F5"};

  MenuEntry OptionsMenu{&form, "OptionsMenu", "&Options"};
  MenuEntry WriteMode{&OptionsMenu, "WriteMode", "&Write Mode", "Ctrl+W"};
  MenuEntry Split12{&OptionsMenu, "Split12", MenuEntry::kSeparator};
  MenuEntry SelectPort{&OptionsMenu, "SelectPort", "&Comm Port"};
  std::array<MenuEntry, 4> PortOption{MenuEntry(&SelectPort, "PortOption", "Comm&1", "Ctrl+F1", 0),
                                      MenuEntry(&SelectPort, "PortOption", "Comm&2", "Ctrl+F2", 1),
                                      MenuEntry(&SelectPort, "PortOption", "Comm&3", "Ctrl+F3", 2),
                                      MenuEntry(&SelectPort, "PortOption", "Comm&4", "Ctrl+F4", 3)};
  MenuEntry Split14{&OptionsMenu, "Split14", MenuEntry::kSeparator};
  MenuEntry TipsOption{&OptionsMenu, "TipsOption", "Show/Hide &Tips", "Ctrl+T"};

  MenuEntry ToolsMenu{&form, "ToolsMenu", "&Tools"};
  MenuEntry DeleteLabels{&ToolsMenu, "DeleteLabels", "&Delete Labels"};
  MenuEntry DeleteUnusedLabels{&ToolsMenu, "DeleteUnusedLabels", "Trash &Unused Strings"};
  MenuEntry Split5{&ToolsMenu, "Split5", MenuEntry::kSeparator};
  MenuEntry CommentsTool{&ToolsMenu, "CommentsTool", "&Enter/Edit Comments", "F4"};
  MenuEntry Split6{&ToolsMenu, "Split6", MenuEntry::kSeparator};
  MenuEntry AssignAddress{&ToolsMenu, "AssignAddress", "&Assign Addresses", "F5"};
  MenuEntry EqtOption{&ToolsMenu, "EqtOption", "Assign &Equivalents", "F6"};
  MenuEntry Split11{&ToolsMenu, "Split11", MenuEntry::kSeparator};
  MenuEntry EntryMode{&ToolsMenu, "EntryMode", "Data &Mode", "Ctrl+M"};
};

}  // namespace quilla

#endif  // QUILLA_PROGRAM_PANEL_MENU_H_
