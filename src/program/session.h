// The session: the tables, lists and variables that all tools of the panel share. It is data
// alone; the rules stand with the tools.
#ifndef QUILLA_PROGRAM_SESSION_H_
#define QUILLA_PROGRAM_SESSION_H_

#include <array>
#include <cstddef>
#include <string>

#include "platform/button.h"
#include "platform/file_channels.h"
#include "platform/form.h"
#include "platform/grid.h"
#include "platform/outside.h"
#include "platform/text_box.h"
#include "platform/text_list.h"
#include "program/panel_menu.h"
#include "program/panel_state.h"
#include "program/vocabulary.h"

namespace quilla {

/// Where `SavedCells` keeps the operand string, behind the cells of columns 1 to 4.
inline constexpr std::size_t kSavedOperand = 5;

/// Where the session came from.
enum class FileOrigin : int { kNew = 1, kOpened = 2, kSaved = 3, kDisassembled = 4 };

/// The code of an answer as `MessageResult` holds it.
inline std::string AnswerCode(BoxAnswer answer) { return std::to_string(static_cast<int>(answer)); }

/// What the label lists say of one label.
struct LabelRecord {
  std::string name;
  std::string placed;
  std::string used;
  std::string line;
  std::string equivalent;
};

struct Session {
  explicit Session(Outside& world);

  Outside& outside;
  Form ProgrammingPanel{kProgrammingPanel};

  // The program: rows of five cells, and the operand string of each row.
  Grid Table1{&ProgrammingPanel, "Table1", kProgramColumns};
  Grid StringTable{nullptr, "StringTable", 1};
  // The clipboard of the edit commands, row by row as the two tables above.
  Grid EditTable{nullptr, "EditTable", kProgramColumns};
  TextList EditStringTable{nullptr, "EditStringTable"};

  // Labels and variables: parallel lists, in order of creation.
  ComboBox LabelCombo{nullptr, "LabelCombo"};
  TextList LabelEqtList{nullptr, "LabelEqtList"};
  TextList LabelUsedList{nullptr, "LabelUsedList"};
  TextList LabelPlacedList{nullptr, "LabelPlacedList"};
  TextList LabelLineList{nullptr, "LabelLineList"};
  ComboBox XXCombo{nullptr, "XXCombo"};
  TextList XXEqtList{nullptr, "XXEqtList"};
  // Copies of LabelCombo for the find, place and replace tools.
  ComboBox FindCombo{nullptr, "FindCombo"};
  ComboBox PlaceCombo{nullptr, "PlaceCombo"};
  ComboBox ReplaceCombo{nullptr, "ReplaceCombo"};

  // The comment of printed pages as it stands in its box.
  TextBox PrintCommentText{nullptr, "PrintCommentText"};

  // Blocks, and the assembled image.
  TextList OriginList{nullptr, "OriginList"};
  TextList LastAddressList{nullptr, "LastAddressList"};
  TextList HexList{nullptr, "HexList"};

  // What the panel always shows.
  Box TipsBox{&ProgrammingPanel, "TipsBox"};
  Label TipsLabel{&TipsBox, "TipsLabel", "Instructions"};
  Box WriteModeBox{&ProgrammingPanel, "WriteModeBox"};
  Label WriteModeLabel{&WriteModeBox, "WriteModeLabel", kOverwriteMode};
  PanelMenu menu{ProgrammingPanel};

  // The state of the panel and of the entry under way.
  PanelState CurrentPanelState = PanelState::kReady;
  int CurrentRow = 0;
  int LastLine = 0;
  int CurrentOpcode = 0;
  int SelectedInstruction = 0;
  bool EntryPending = false;
  std::array<std::string, kSavedOperand + 1> SavedCells;
  int SelectionTop = 0;
  int SelectionBottom = 0;
  int SelectionAnchor = 0;
  int ClickedRow = 0;
  std::string SavedComment;

  // The file, and the answer of the last message box.
  std::string FileName;
  std::string ProjectPath;
  quilla::FileOrigin FileOrigin = quilla::FileOrigin::kNew;
  bool FileChanged = false;
  std::string MessageResult;
  std::string HexPath;
  std::string HexTitle;
  FileChannels channels{outside.storage};

  bool AddressError = false;
  MSComm MSComm1;
  int CommPortNumber = 1;  // the port that the user has chosen, 1 to 4
  bool PortOpen = false;   // a transfer has opened the port
  // Numbers for generated names, shared by paste and the disassembler.
  int NextLabelNumber = 1;
  int NextVariableNumber = 1;

  /// Shows a message box and keeps its answer in MessageResult.
  BoxAnswer Ask(BoxIcon icon, const std::string& text, BoxButtons buttons);
  void ShowCritical(const std::string& text) { Ask(BoxIcon::kCritical, text, BoxButtons::kOk); }
  void ShowInformation(const std::string& text) {
    Ask(BoxIcon::kInformation, text, BoxButtons::kOk);
  }

  void SetTip(std::string tip) { TipsLabel.set_caption(std::move(tip)); }
  bool IsReady() const {
    return CurrentPanelState == PanelState::kReady || CurrentPanelState == PanelState::kDataReady;
  }
  bool IsOrigin(int row) const { return Table1.TextMatrix(row, kLabelColumn) == kOrigin; }
  bool IsInsertMode() const { return WriteModeLabel.caption() == kInsertMode; }
  /// Adds a label at the end of all label lists.
  void AddLabel(const LabelRecord& label);
  /// Adds a variable at the end of both variable lists.
  void AddVariable(const std::string& name, const std::string& equivalent);
  /// Empties all lists of labels and variables.
  void ClearStrings();
  void SetWriteMode(bool insert);
  /// The operand string of a row.
  const std::string& OperandOf(int row) const { return StringTable.TextMatrix(row, 0); }
  /// The state that a finished task returns to, by the caption of `EntryMode`.
  PanelState ReadyState() const {
    return menu.EntryMode.caption() == kOffersDataMode ? PanelState::kReady
                                                       : PanelState::kDataReady;
  }
  /// Opens the serial port for a transfer. Fails as SerialPort::Open does.
  void OpenPort();
  /// Closes the serial port if a transfer has it open.
  void ClosePort();
};

}  // namespace quilla

#endif  // QUILLA_PROGRAM_SESSION_H_
