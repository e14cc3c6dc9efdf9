#include "program/state_machine.h"

#include <cstddef>
#include <iterator>

namespace quilla {
namespace {

/// What entering a state does to the boxes.
enum class Entering {
  kNothing,
  kGetsReady,    // closes all boxes; the panel is ready for entry
  kOpensBox,     // closes the entry boxes and opens its own
  kAddsBox,      // opens its own box and closes none
  kClosesEntry,  // closes the entry boxes
  kPicksRow,     // a row has been picked for the open box
};

struct StateRow {
  const char* tip = "";
  Entering entering = Entering::kNothing;
  BoxId box = BoxId::kInstruction;
};

constexpr const char* kByteTip = "Enter 8-bit number and click 'Accept'.";
constexpr const char* kWordTip = "Enter 16-bit number and click 'Accept'.";
constexpr const char* kPairTip = "Select Register Pair.";
constexpr const char* kRegisterTip = "Select Register or Memory.";
constexpr const char* kPlaceTip = "Select Row, Enter Label and Click 'Place'; or Click 'Cancel'.";
constexpr const char* kCommentTip =
    "Select Row, Enter Comments and Click 'Done', or Click 'Cancel'.";
constexpr const char* kReplaceTip =
    "Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'.";

constexpr StateRow kStates[] = {
    /* 0*/ {""},
    /* 1*/ {"Program Mode.", Entering::kGetsReady},
    /* 2*/ {kByteTip, Entering::kOpensBox, BoxId::kVariable},
    /* 3*/ {kRegisterTip, Entering::kOpensBox, BoxId::kRegister},
    /* 4*/ {"Enter Label and click 'Accept'.", Entering::kOpensBox, BoxId::kLabel},
    /* 5*/ {kPairTip, Entering::kOpensBox, BoxId::kRegister},
    /* 6*/ {kWordTip, Entering::kOpensBox, BoxId::kNumber},
    /* 7*/ {kPairTip, Entering::kOpensBox, BoxId::kRegister},
    /* 8*/ {kWordTip, Entering::kOpensBox, BoxId::kLabel},
    /* 9*/
    {"Select Register or Memory (Destination).", Entering::kOpensBox, BoxId::kRegister},
    /*10*/ {"Select Register or Memory (Source).", Entering::kOpensBox, BoxId::kRegister},
    /*11*/ {kPairTip, Entering::kOpensBox, BoxId::kRegister},
    /*12*/ {"Select Number.", Entering::kOpensBox, BoxId::kNumber},
    /*13*/ {kPairTip, Entering::kOpensBox, BoxId::kRegister},
    /*14*/ {kRegisterTip, Entering::kOpensBox, BoxId::kRegister},
    /*15*/ {kByteTip, Entering::kOpensBox, BoxId::kVariable},
    /*16*/ {kPlaceTip, Entering::kOpensBox, BoxId::kPlace},
    /*17*/ {kPlaceTip, Entering::kPicksRow},
    /*18*/ {"Select Row to Reposition Cursor; or Press 'Esc'."},
    /*19*/ {kCommentTip, Entering::kOpensBox, BoxId::kComment},
    /*20*/ {kCommentTip, Entering::kOpensBox, BoxId::kComment},
    /*21*/ {"Edit the program using 'Cut', 'Copy', 'Paste', 'Delete'."},
    /*22*/
    {"Select a Label from list and Click 'Find', or Click 'Done' to close.", Entering::kOpensBox,
     BoxId::kFind},
    /*23*/ {kReplaceTip, Entering::kOpensBox, BoxId::kReplace},
    /*24*/ {kReplaceTip, Entering::kPicksRow},
    /*25*/
    {"Enter starting address of the Origin and Click Accept', or press 'Esc' to quit.",
     Entering::kOpensBox, BoxId::kNumber},
    /*26*/ {"Enter Label, and Click 'Equivalent' to assign Equivalent Address."},
    /*27*/
    {"Enter Equivalent Address and Click 'Accept'.", Entering::kOpensBox, BoxId::kNumber},
    /*28*/
    {"Enter starting address of the Origin and Click 'Accept', or press 'Esc' to quit.",
     Entering::kOpensBox, BoxId::kNumber},
    /*29*/ {"Data Mode.", Entering::kGetsReady},
    /*30*/ {"Click on Labels to Delete, and Press 'Esc' when done."},
    /*31*/ {"Press 'Esc' to quit deleting labels.", Entering::kClosesEntry},
    /*32*/
    {"Select a Variable from list and Click 'Find', or Click 'Done' to close.", Entering::kOpensBox,
     BoxId::kFindVariable},
    /*33*/ {"", Entering::kOpensBox, BoxId::kReplaceVariable},
    /*34*/ {""},
    /*35*/ {"", Entering::kAddsBox, BoxId::kPrintComment},
};

const StateRow& RowOf(PanelState state) {
  const auto number = static_cast<std::size_t>(state);
  return number < std::size(kStates) ? kStates[number] : kStates[0];
}

}  // namespace

StateMachine::StateMachine(Session& session) : session_(session) {
  session_.menu.TipsOption.Click = [this] {
    session_.TipsBox.set_visible(!session_.TipsBox.visible());
  };
}

void StateMachine::ControlTransfer(PanelState next) {
  session_.CurrentPanelState = next;
  FileMenuStatus(true);
  EditMenuStatus(true);
  ToolMenuStatus(true);
  const StateRow& row = RowOf(next);
  switch (row.entering) {
    case Entering::kNothing:
      break;
    case Entering::kGetsReady:
      GetReady(next == PanelState::kDataReady);
      break;
    case Entering::kOpensBox:
      Status(BoxId::kInstruction, false);
      Status(BoxId::kData, false);
      Status(row.box, true);
      break;
    case Entering::kAddsBox:
      Status(row.box, true);
      break;
    case Entering::kClosesEntry:
      Status(BoxId::kInstruction, false);
      Status(BoxId::kData, false);
      break;
    case Entering::kPicksRow:
      if (const auto picked = picked_.find(next); picked != picked_.end()) picked->second();
      break;
  }
  // A box may have handed the panel on to another state, whose tip then holds.
  session_.SetTip(RowOf(session_.CurrentPanelState).tip);
}

void StateMachine::GetReady(bool data_mode) {
  if (!data_mode) session_.EntryPending = false;
  Status(BoxId::kInstruction, !data_mode);
  session_.Table1.set_selection_display(SelectionDisplay::kRows);
  session_.Table1.SelectRow(session_.CurrentRow);
  for (const BoxId box : {BoxId::kData, BoxId::kNumber, BoxId::kRegister, BoxId::kLabel,
                          BoxId::kVariable, BoxId::kFind, BoxId::kPlace, BoxId::kReplace,
                          BoxId::kData, BoxId::kComment, BoxId::kPrintComment}) {
    Status(box, false);
  }
  session_.SelectionTop = session_.CurrentRow;
  session_.SelectionBottom = session_.CurrentRow;
  if (data_mode) Status(BoxId::kData, true);
  if (ready_) ready_();
}

void StateMachine::Status(BoxId box, bool status) const {
  const auto found = statuses_.find(box);
  if (found != statuses_.end()) found->second(status);
}

const TableTask& StateMachine::CurrentTableTask() const {
  static const TableTask kNone;
  const auto found = table_tasks_.find(session_.CurrentPanelState);
  return found != table_tasks_.end() ? found->second : kNone;
}

void StateMachine::FileMenuStatus(bool status) {
  PanelMenu& menu = session_.menu;
  menu.FileMenu.set_enabled(status);
  if (!status) return;
  const bool ready = session_.IsReady();
  for (MenuEntry* entry : {&menu.NewFileMenu, &menu.OpenFile, &menu.SaveFile, &menu.SaveAsFile,
                           &menu.AssembleFile, &menu.DownloadFile, &menu.DisassembleFile,
                           &menu.UploadFile, &menu.PrintOptions, &menu.PrintFile, &menu.QuitFile}) {
    entry->set_enabled(ready);
  }
}

void StateMachine::EditMenuStatus(bool status) {
  PanelMenu& menu = session_.menu;
  menu.EditMenu.set_enabled(status);
  if (!status) return;
  const bool ready = session_.IsReady();
  menu.PasteEdit.set_enabled(ready && session_.EditTable.Rows() > 0);
  for (MenuEntry* entry :
       {&menu.CutEdit, &menu.CopyEdit, &menu.DeleteEdit, &menu.FindEdit, &menu.ReplaceEdit}) {
    entry->set_enabled(ready);
  }
}

void StateMachine::ToolMenuStatus(bool status) {
  PanelMenu& menu = session_.menu;
  menu.ToolsMenu.set_enabled(status);
  if (!status) return;
  const bool ready = session_.IsReady();
  for (MenuEntry* entry :
       {&menu.PlaceLabelTool, &menu.DeleteLabels, &menu.DeleteUnusedLabels, &menu.CommentsTool,
        &menu.AssignAddress, &menu.EqtOption, &menu.EntryMode}) {
    entry->set_enabled(ready);
  }
}

}  // namespace quilla
