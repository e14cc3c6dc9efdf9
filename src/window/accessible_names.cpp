#include "window/accessible_names.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "window/qt_text.h"

namespace quilla {
namespace {

struct Name {
  std::string_view control;
  const char* told;
  int index = Control::kNoIndex;
};

constexpr std::array kNames = {
    Name{"Table1", "Program"},
    Name{"InstructionBox", "Instructions"},
    Name{"RegisterBox", "Registers"},
    Name{"NumberBox", "Number"},
    Name{"NumberFocusButton", "Number"},
    Name{"DataBox", "Data byte"},
    Name{"LabelBox", "Label"},
    Name{"LabelText", "New label"},
    Name{"LabelCombo", "Existing label"},
    Name{"XXBox", "Variable"},
    Name{"XXText", "New variable"},
    Name{"XXCombo", "Existing variable"},
    Name{"PlaceBox", "Place a label"},
    Name{"PlaceText", "New label"},
    Name{"PlaceCombo", "Existing label"},
    Name{"FindBox", "Find a label"},
    Name{"FindCombo", "Label"},
    Name{"ReplaceBox", "Replace labels"},
    Name{"ReplaceText", "New label"},
    Name{"ReplaceCombo", "Existing label"},
    Name{"CommentsBox", "Comments"},
    Name{"CommentsTxt", "Comment"},
    Name{"PrintCommentBox", "Comment of printed pages"},
    Name{"PrintCommentText", "Comment of printed pages"},
    Name{"TipsBox", "Tips"},
    Name{"WriteModeBox", "Write mode"},
    Name{"TableCancelButton", "Cancel"},
    Name{"LabelFrame", "Labels"},
    Name{"LabelTable", "Labels"},
    Name{"VariableFrame", "Variables"},
    Name{"VariableTable", "Variables"},
    Name{"EqtBox", "New equivalent"},
    Name{"DigitBox", "Digits"},
    Name{"DataTable", "Bytes"},
    Name{"InstructionTable", "Next instruction"},
    Name{"RegisterTable", "Registers"},
    Name{"MemoryTable", "Memory"},
    Name{"PortTable", "Ports"},
    Name{"InterruptTable", "Interrupt lines"},
    Name{"PortAddrList", "Port address"},
    Name{"ValueList", "Port value"},
    Name{"AddrBox", "Starting address"},
    Name{"TRAP", "TRAP"},
    Name{"RST75", "RST 7.5"},
    Name{"RST65", "RST 6.5"},
    Name{"RST55", "RST 5.5"},
    Name{"INTR", "INTR"},
    Name{"IButton", "TRAP", 1},
    Name{"IButton", "RST 7.5", 2},
    Name{"IButton", "RST 6.5", 3},
    Name{"IButton", "RST 5.5", 4},
    Name{"IButton", "INTR", 5},
};

}  // namespace

QString AccessibleNameOf(const Control& control) {
  const auto* const name = std::find_if(kNames.begin(), kNames.end(), [&](const Name& each) {
    return each.control == control.name() && each.index == control.index();
  });
  return name == kNames.end() ? QString() : QString(name->told);
}

}  // namespace quilla
