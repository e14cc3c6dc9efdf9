#include "robot/report.h"

#include <algorithm>

#include "platform/button.h"
#include "platform/number_text.h"
#include "platform/text_box.h"
#include "robot/words.h"

namespace quilla::robot {
namespace {

constexpr int kColorDigits = 6;

// The input boxes of the panel, in the order in which they are told.
constexpr const char* kInputBoxes[] = {"InstructionBox", "RegisterBox", "NumberBox",      "DataBox",
                                       "LabelBox",       "XXBox",       "PlaceBox",       "FindBox",
                                       "ReplaceBox",     "CommentsBox", "PrintCommentBox"};

std::string VisibleBoxes(const Form& panel) {
  std::string names;
  for (const char* const name : kInputBoxes) {
    const Control* const box = panel.Find(name);
    if (box != nullptr && box->IsVisible()) names += std::string(" ") + name;
  }
  return names.empty() ? " -" : names;
}

}  // namespace

std::string ColorText(CellColor color) {
  if (color == kSelectionColor) return "cursor";
  return color.is_painted() ? PaddedHexText(color.value(), kColorDigits) : "-";
}

std::vector<std::pair<std::string, std::string>> NumbersOf(const Session& session) {
  std::vector<std::pair<std::string, std::string>> numbers;
  const auto number = [&](const char* name, int value) {
    numbers.emplace_back(name, std::to_string(value));
  };
  const auto flag = [&](const char* name, bool value) { number(name, value ? 1 : 0); };
  number("PanelState", static_cast<int>(session.CurrentPanelState));
  number("CurrentRow", session.CurrentRow);
  number("LastLine", session.LastLine);
  number("Rows", session.Table1.Rows());
  number("FileOrigin", static_cast<int>(session.FileOrigin));
  flag("FileChanged", session.FileChanged);
  flag("EntryPending", session.EntryPending);
  number("SelectionTop", session.SelectionTop);
  number("SelectionBottom", session.SelectionBottom);
  flag("PortOpen", session.PortOpen);
  number("AddressError", session.AddressError ? -1 : 0);
  return numbers;
}

void PrintState(std::ostream& transcript, const Session& session) {
  const auto text = [&](const char* name, const std::string& value) {
    transcript << name << ' ' << Quoted(value) << '\n';
  };
  for (const auto& [name, value] : NumbersOf(session)) transcript << name << ' ' << value << '\n';
  text("FileName", session.FileName);
  text("EntryMode", session.menu.EntryMode.caption());
  text("WriteModeLabel", session.WriteModeLabel.caption());
  text("TipsLabel", session.TipsLabel.caption());
  text("Title", session.ProgrammingPanel.caption());
  text("MessageResult", session.MessageResult);
  transcript << "Boxes" << VisibleBoxes(session.ProgrammingPanel) << '\n';
}

void PrintControl(std::ostream& transcript, const std::string& name, const Control& control) {
  const auto* const menu_entry = dynamic_cast<const MenuEntry*>(&control);
  const auto* const option = dynamic_cast<const Option*>(&control);
  transcript << name;
  if (control.index() != Control::kNoIndex) transcript << ' ' << control.index();
  if (menu_entry != nullptr || dynamic_cast<const Button*>(&control) != nullptr ||
      dynamic_cast<const Label*>(&control) != nullptr) {
    transcript << " caption=" << Quoted(control.caption());
  }
  if (const auto* const text_box = dynamic_cast<const TextBox*>(&control)) {
    transcript << " text=" << Quoted(text_box->text());
  }
  if (const auto* const combo = dynamic_cast<const ComboBox*>(&control)) {
    transcript << " text=" << Quoted(combo->text()) << " index=" << combo->index()
               << " count=" << combo->Count();
  }
  if (option != nullptr) transcript << " checked=" << option->checked();
  if (menu_entry != nullptr && menu_entry->checkable()) {
    transcript << " checked=" << menu_entry->checked();
  }
  transcript << " enabled=" << control.IsEnabled() << " visible=" << control.IsVisible() << '\n';
}

bool HoldsText(const Grid& grid, int row) {
  for (int column = 0; column < grid.Cols(); ++column) {
    if (!grid.TextMatrix(row, column).empty()) return true;
  }
  return false;
}

void PrintCells(std::ostream& transcript, const Grid& grid, int row) {
  for (int column = 0; column < grid.Cols(); ++column) {
    transcript << ' ' << Quoted(grid.TextMatrix(row, column));
  }
}

void PrintRows(std::ostream& transcript, const std::string& name, const Grid& grid, int first,
               int last) {
  const int end = std::min(last, grid.Rows() - 1);
  for (int row = std::max(first, 0); row <= end; ++row) {
    if (!HoldsText(grid, row)) continue;
    transcript << name << ' ' << row;
    PrintCells(transcript, grid, row);
    transcript << '\n';
  }
}

void PrintColors(std::ostream& transcript, const std::string& name, const Grid& grid) {
  for (int row = 0; row < grid.Rows(); ++row) {
    for (int column = 0; column < grid.Cols(); ++column) {
      const CellColor back = grid.BackColor(row, column);
      const CellColor fore = grid.ForeColor(row, column);
      if (back == kNormalColor && fore == kNormalColor) continue;
      transcript << name << ' ' << row << ' ' << column << " back=" << ColorText(back)
                 << " fore=" << ColorText(fore) << '\n';
    }
  }
}

void PrintList(std::ostream& transcript, const std::string& name, const TextList& list) {
  if (list.IsEmpty()) transcript << name << " empty\n";
  for (int position = 0; position < list.Count(); ++position) {
    transcript << name << ' ' << position << ' ' << Quoted(list[position]) << '\n';
  }
}

}  // namespace quilla::robot
