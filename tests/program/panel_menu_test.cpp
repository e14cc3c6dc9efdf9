// The menu bar as users see it: captions with their access keys, and shortcuts.
#include "program/panel_menu.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "panel/running_program.h"

namespace quilla {
namespace {

TEST(PanelMenuTest, EntriesReadAsTheyShould) {
  std::istringstream expected(R"(FileMenu=&File NewFileMenu=&New NewFile=&File=Ctrl+N
NewOrigin=&Origin=Ctrl+Ins OpenFile=&Open=Ctrl+O SaveFile=&Save=Ctrl+S SaveAsFile=Save_&As
AssembleFile=Assem&ble=Ctrl+A DownloadFile=Do&wnload DisassembleFile=&Disassemble=Ctrl+D
UploadFile=&Upload PrintOptions=Print_Op&tions ViewPrintInfo=&View_Print_Information
PrintComments=&Insert_Comments PagePrint=&Pages PageOption=&All_Pages PageOption=&Odd_Pages_only
PageOption=&Even_Pages_only PrintFile=&Print=Ctrl+P QuitFile=&Quit=Ctrl+Q EditMenu=&Edit
CutEdit=&Cut=Ctrl+X CopyEdit=&Copy=Ctrl+C PasteEdit=&Paste=Ctrl+V DeleteEdit=&Delete=Del
PlaceLabelTool=&Place_Labels=Shift+Ins FindEdit=&Find FindLabel=&Label FindVariable=&Variable
ReplaceEdit=&Replace ReplaceLabel=&Labels ReplaceVariable=&Variables ViewMenu=&View
SimulationView=&Simulation_Panel=Ctrl+F5 OptionsMenu=&Options WriteMode=&Write_Mode=Ctrl+W
SelectPort=&Comm_Port PortOption=Comm&1=Ctrl+F1 PortOption=Comm&2=Ctrl+F2
PortOption=Comm&3=Ctrl+F3 PortOption=Comm&4=Ctrl+F4 TipsOption=Show/Hide_&Tips=Ctrl+T
ToolsMenu=&Tools DeleteLabels=&Delete_Labels DeleteUnusedLabels=Trash_&Unused_Strings
CommentsTool=&Enter/Edit_Comments=F4 AssignAddress=&Assign_Addresses=F5
EqtOption=Assign_&Equivalents=F6 EntryMode=Data_&Mode=Ctrl+M)");
  RunningProgram program;
  for (const Control* control : program.session().ProgrammingPanel.controls()) {
    const auto* const entry = dynamic_cast<const MenuEntry*>(control);
    if (entry == nullptr || entry->is_separator()) continue;
    std::string text = entry->name() + "=" + entry->caption();
    if (!entry->shortcut().empty()) text += "=" + entry->shortcut();
    for (char& character : text) character = character == ' ' ? '_' : character;
    std::string wanted;
    expected >> wanted;
    EXPECT_EQ(text, wanted);
    EXPECT_EQ(entry->checked(), entry->checkable() && entry->index() == 0) << text;
  }
  EXPECT_TRUE((expected >> std::ws).eof());
}

}  // namespace
}  // namespace quilla
