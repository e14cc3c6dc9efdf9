// The menu bar of the main panel: every entry with its caption and shortcut, in order.
#ifndef QUILLA_PROGRAM_PANEL_MENU_H_
#define QUILLA_PROGRAM_PANEL_MENU_H_

#include <array>

#include "platform/button.h"
#include "platform/form.h"

namespace quilla {

struct PanelMenu {
  explicit PanelMenu(Form& form);

  /// Takes every entry out of sight that has neither a handler nor a visible entry under it, so
  /// that no entry is on view that does nothing.
  void HideIdleEntries();

  MenuEntry FileMenu, NewFileMenu, NewFile, NewOrigin, OpenFile, SaveFile, SaveAsFile, Split8,
      AssembleFile, DownloadFile, Split13, DisassembleFile, UploadFile, Split1, PrintOptions,
      ViewPrintInfo, PrintComments, PagePrint;
  std::array<MenuEntry, 3> PageOption;
  MenuEntry PrintFile, Split3, QuitFile;

  MenuEntry EditMenu, CutEdit, CopyEdit, PasteEdit, DeleteEdit, Split4, PlaceLabelTool, FindEdit,
      FindLabel, FindVariable, ReplaceEdit, ReplaceLabel, ReplaceVariable;

  MenuEntry ViewMenu, SimulationView;

  MenuEntry OptionsMenu, WriteMode, Split12, SelectPort;
  std::array<MenuEntry, 4> PortOption;
  MenuEntry Split14, TipsOption;

  MenuEntry ToolsMenu, DeleteLabels, DeleteUnusedLabels, Split5, CommentsTool, Split6,
      AssignAddress, EqtOption, Split11, EntryMode;

 private:
  Form& form_;
};

}  // namespace quilla

#endif  // QUILLA_PROGRAM_PANEL_MENU_H_
