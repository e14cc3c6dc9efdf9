#include "program/state_machine.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "program/desk.h"

namespace quilla {
namespace {

const std::map<BoxId, std::string> kBoxes = {
    {BoxId::kInstruction, "instruction"},
    {BoxId::kData, "data"},
    {BoxId::kRegister, "register"},
    {BoxId::kNumber, "number"},
    {BoxId::kLabel, "label"},
    {BoxId::kVariable, "variable"},
    {BoxId::kFindVariable, "find-variable"},
    {BoxId::kReplaceVariable, "replace-variable"},
    {BoxId::kPlace, "place"},
    {BoxId::kFind, "find"},
    {BoxId::kReplace, "replace"},
    {BoxId::kComment, "comment"},
    {BoxId::kPrintComment, "print"},
};

/// A state machine whose boxes write down when they are shown (+) and hidden (-).
class StateMachineTest : public testing::Test {
 protected:
  StateMachineTest() {
    for (const auto& [id, name] : kBoxes) {
      states_.SetStatus(id,
                        [this, name = name](bool status) { Note(name + (status ? "+" : "-")); });
    }
    states_.SetPicked(PanelState::kPlaceOnRow, [this] { Note("picked place"); });
    states_.SetPicked(PanelState::kReplacePicked, [this] { Note("picked replace"); });
    states_.SetReady([this] { Note("ready"); });
  }

  void Note(const std::string& event) { log_ += (log_.empty() ? "" : " ") + event; }
  void Enter(int state) {
    log_.clear();
    states_.ControlTransfer(static_cast<PanelState>(state));
  }
  const std::string& Tip() const { return session_.TipsLabel.caption(); }

  Desk desk_;
  Session& session_ = desk_.session;
  StateMachine states_{session_};
  std::string log_;
};

TEST_F(StateMachineTest, EveryStateHasItsTipAndItsBox) {
  const std::string byte = "Enter 8-bit number and click 'Accept'.";
  const std::string word = "Enter 16-bit number and click 'Accept'.";
  const std::string pair = "Select Register Pair.";
  const std::string place = "Select Row, Enter Label and Click 'Place'; or Click 'Cancel'.";
  const std::string comment = "Select Row, Enter Comments and Click 'Done', or Click 'Cancel'.";
  const std::string replace =
      "Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'.";
  const std::string closed =
      "data- number- register- label- variable- find- place- replace- data- comment- print-";
  const struct {
    int state;
    std::string tip;
    std::string boxes;  // a name alone: the box opens after the two entry boxes have closed
  } cases[] = {
      {0, "", ""},
      {1, "Program Mode.", "instruction+ " + closed + " ready"},
      {2, byte, "variable"},
      {3, "Select Register or Memory.", "register"},
      {4, "Enter Label and click 'Accept'.", "label"},
      {5, pair, "register"},
      {6, word, "number"},
      {7, pair, "register"},
      {8, word, "label"},
      {9, "Select Register or Memory (Destination).", "register"},
      {10, "Select Register or Memory (Source).", "register"},
      {11, pair, "register"},
      {12, "Select Number.", "number"},
      {13, pair, "register"},
      {14, "Select Register or Memory.", "register"},
      {15, byte, "variable"},
      {16, place, "place"},
      {17, place, "picked place"},
      {18, "Select Row to Reposition Cursor; or Press 'Esc'.", ""},
      {19, comment, "comment"},
      {20, comment, "comment"},
      {21, "Edit the program using 'Cut', 'Copy', 'Paste', 'Delete'.", ""},
      {22, "Select a Label from list and Click 'Find', or Click 'Done' to close.", "find"},
      {23, replace, "replace"},
      {24, replace, "picked replace"},
      {25, "Enter starting address of the Origin and Click Accept', or press 'Esc' to quit.",
       "number"},
      {26, "Enter Label, and Click 'Equivalent' to assign Equivalent Address.", ""},
      {27, "Enter Equivalent Address and Click 'Accept'.", "number"},
      {28, "Enter starting address of the Origin and Click 'Accept', or press 'Esc' to quit.",
       "number"},
      {29, "Data Mode.", "instruction- " + closed + " data+ ready"},
      {30, "Click on Labels to Delete, and Press 'Esc' when done.", ""},
      {31, "Press 'Esc' to quit deleting labels.", "instruction- data-"},
      {32, "Select a Variable from list and Click 'Find', or Click 'Done' to close.",
       "find-variable"},
      {33, "", "replace-variable"},
      {34, "", ""},
      {35, "", "print+"},
      {36, "", ""},
      {-1, "", ""},
  };
  for (const auto& [state, tip, boxes] : cases) {
    Enter(state);
    const bool opens = !boxes.empty() && boxes.find_first_of(" +") == std::string::npos;
    EXPECT_EQ(Tip(), tip) << state;
    EXPECT_EQ(log_, opens ? "instruction- data- " + boxes + "+" : boxes) << state;
    EXPECT_EQ(static_cast<int>(session_.CurrentPanelState), state);
  }
}

TEST_F(StateMachineTest, OnlyReadyStatesOfferCommands) {
  PanelMenu& menu = session_.menu;
  const std::vector<const MenuEntry*> commands = {
      &menu.NewFileMenu,    &menu.OpenFile,     &menu.SaveFile,           &menu.SaveAsFile,
      &menu.AssembleFile,   &menu.DownloadFile, &menu.DisassembleFile,    &menu.UploadFile,
      &menu.PrintOptions,   &menu.PrintFile,    &menu.QuitFile,           &menu.CutEdit,
      &menu.CopyEdit,       &menu.DeleteEdit,   &menu.FindEdit,           &menu.ReplaceEdit,
      &menu.PlaceLabelTool, &menu.DeleteLabels, &menu.DeleteUnusedLabels, &menu.CommentsTool,
      &menu.AssignAddress,  &menu.EqtOption,    &menu.EntryMode};
  const std::vector<const MenuEntry*> always = {
      &menu.FileMenu,  &menu.EditMenu,   &menu.ViewMenu,  &menu.SimulationView,
      &menu.WriteMode, &menu.SelectPort, &menu.ToolsMenu, &menu.TipsOption};
  for (int state = 0; state <= 36; ++state) {
    const bool ready = state == 1 || state == 29;
    for (const int clipboard_rows : {0, 1}) {
      session_.EditTable.SetRows(clipboard_rows);
      Enter(state);
      EXPECT_EQ(menu.PasteEdit.enabled(), ready && clipboard_rows > 0) << state;
    }
    for (const auto* entry : commands) {
      EXPECT_EQ(entry->enabled(), ready) << entry->name() << " in state " << state;
    }
    for (const auto* entry : always) EXPECT_TRUE(entry->enabled()) << entry->name();
  }
}

TEST_F(StateMachineTest, MenusGoOffAsAWholeAndComeBackWithTheState) {
  const PanelMenu& menu = session_.menu;
  Enter(1);
  states_.FileMenuStatus(false);
  states_.EditMenuStatus(false);
  states_.ToolMenuStatus(false);
  EXPECT_FALSE(menu.FileMenu.enabled() || menu.EditMenu.enabled() || menu.ToolsMenu.enabled());
  EXPECT_TRUE(menu.SaveFile.enabled()) << "its own setting stays";
  Enter(29);
  EXPECT_TRUE(menu.FileMenu.enabled() && menu.EditMenu.enabled() && menu.ToolsMenu.enabled());
}

TEST_F(StateMachineTest, GettingReadyTakesTheSelectionToTheCursor) {
  for (const int state : {1, 29}) {
    session_.EntryPending = true;
    session_.CurrentRow = 7;
    session_.SelectionTop = 2;
    session_.SelectionBottom = 9;
    Enter(state);
    EXPECT_EQ(session_.EntryPending, state == 29);
    EXPECT_EQ(session_.Table1.Row(), 7);
    EXPECT_EQ(session_.SelectionTop, 7);
    EXPECT_EQ(session_.SelectionBottom, 7);
  }
}

TEST_F(StateMachineTest, TasksReturnToTheModeThatThePanelIsIn) {
  const std::pair<const char*, int> modes[] = {
      {"Data &Mode", 1}, {"Program &Mode", 29}, {"neither", 29}};
  for (const auto& [caption, state] : modes) {
    session_.menu.EntryMode.set_caption(caption);
    states_.ReturnToReady();
    EXPECT_EQ(static_cast<int>(session_.CurrentPanelState), state) << caption;
  }
}

TEST_F(StateMachineTest, BoxMayHandThePanelOn) {
  states_.SetStatus(BoxId::kFind, [this](bool status) {
    if (status) states_.ControlTransfer(PanelState::kReady);
  });
  Enter(22);
  EXPECT_EQ(Tip(), "Program Mode.");
}

}  // namespace
}  // namespace quilla
