#include "walk/rules.h"

#include <algorithm>
#include <string_view>

#include "program/opcode_cell.h"

namespace quilla::walk {
namespace {

/// The boxes of tasks, of which one stands in the panel at a time.
constexpr std::string_view kBoxes[] = {"InstructionBox", "RegisterBox", "NumberBox", "DataBox",
                                       "LabelBox",       "XXBox",       "PlaceBox",  "FindBox",
                                       "ReplaceBox",     "CommentsBox"};

}  // namespace

std::string Rules::Broken() const {
  struct Rule {
    const char* text;
    bool holds;
  };
  const int rows = session_.Table1.Rows();
  const auto open_boxes = std::ranges::count_if(kBoxes, [this](std::string_view name) {
    const Control* const box = session_.ProgrammingPanel.Find(name);
    return box != nullptr && box->visible();
  });
  const Rule rules[] = {
      {"StringTable is as tall as Table1", session_.StringTable.Rows() == rows},
      {"EditStringTable is as long as EditTable",
       session_.EditStringTable.Count() == session_.EditTable.Rows()},
      {"LabelEqtList is as long as LabelCombo",
       session_.LabelEqtList.Count() == session_.LabelCombo.Count()},
      {"XXEqtList is as long as XXCombo", session_.XXEqtList.Count() == session_.XXCombo.Count()},
      {"CurrentRow is in the table", session_.CurrentRow >= 0 && session_.CurrentRow < rows},
      {"the commands are offered when the panel is ready",
       session_.menu.SaveFile.enabled() == session_.IsReady()},
      {"one box is open at most", open_boxes <= 1},
  };
  for (const Rule& rule : rules) {
    if (!rule.holds) return std::string("no more: ") + rule.text;
  }
  return {};
}

std::string Rules::BrokenLabelList() const {
  for (const ComboBox* copy : {&session_.FindCombo, &session_.PlaceCombo, &session_.ReplaceCombo}) {
    if (copy->items() != session_.LabelCombo.items()) return copy->name() + " is no copy";
  }
  for (int i = 0; i < session_.LabelCombo.Count(); ++i) {
    const std::string& label = session_.LabelCombo[i];
    int line = 0;
    bool used = false;
    for (int row = session_.Table1.Rows() - 1; row > 0; --row) {
      if (session_.Table1.TextMatrix(row, kLabelColumn) == label) line = row;
      used = used || (session_.OperandOf(row) == label &&
                      HasLabel(session_.Table1.TextMatrix(row, kOpcodeColumn)));
    }
    if (session_.LabelLineList[i] != std::to_string(line) ||
        session_.LabelPlacedList[i] != (line > 0 ? kYesFlag : kNoFlag) ||
        session_.LabelUsedList[i] != (used ? kYesFlag : kNoFlag)) {
      return "the lists are wrong about '" + label + "'";
    }
  }
  return {};
}

std::string Rules::BrokenPaste() const {
  if (session_.TipsLabel.caption() != "Completed pasting.") return {};
  for (int row = 0; row < session_.EditTable.Rows(); ++row) {
    const std::string& name = session_.EditStringTable[row];
    const bool variable = HasVariable(session_.EditTable.TextMatrix(row, kOpcodeColumn));
    const TextList& names = variable ? session_.XXCombo : session_.LabelCombo;
    if (!name.empty() && names.Find(name) < 0) return "the pasted '" + name + "' is not listed";
  }
  return BrokenLabelList();
}

}  // namespace quilla::walk
