#include "walk/rules.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "program/opcode_cell.h"

namespace quilla::walk {
namespace {

constexpr std::string_view kBoxes[] = {"InstructionBox", "RegisterBox",     "NumberBox",  "DataBox",
                                       "LabelBox",       "XXBox",           "PlaceBox",   "FindBox",
                                       "ReplaceBox",     "PrintCommentBox", "CommentsBox"};

/// The boxes that may be open in a state.
std::vector<std::string_view> BoxesOf(PanelState state) {
  switch (state) {
    case PanelState::kReady:
      return {"InstructionBox"};
    case PanelState::kDataReady:
      return {"DataBox"};
    case PanelState::kByteOperand:
    case PanelState::kMviOperand:
    case PanelState::kFindVariable:
    case PanelState::kReplaceVariable:
    case PanelState::kVariablePicked:
      return {"XXBox"};
    case PanelState::kRegister:
    case PanelState::kPair:
    case PanelState::kLxiPair:
    case PanelState::kMovDestination:
    case PanelState::kMovSource:
    case PanelState::kStackPair:
    case PanelState::kIndirectPair:
    case PanelState::kMviRegister:
      return {"RegisterBox"};
    case PanelState::kLabelOperand:
    case PanelState::kLxiOperand:
      return {"LabelBox"};
    case PanelState::kRestart:
    case PanelState::kChangeOrigin:
    case PanelState::kNewOrigin:
      return {"NumberBox"};
    case PanelState::kPlaceLabel:
    case PanelState::kPlaceOnRow:
      return {"PlaceBox"};
    case PanelState::kComment:
    case PanelState::kCommentRow:
      return {"CommentsBox"};
    case PanelState::kFindLabel:
      return {"FindBox"};
    case PanelState::kReplaceLabel:
    case PanelState::kReplacePicked:
      return {"ReplaceBox"};
    case PanelState::kPrintComment:
      return {"PrintCommentBox", "InstructionBox", "DataBox"};
    default:
      return {};
  }
}

bool IsPlacedIn(const Session& session, int row, const std::string& label) {
  return session.Table1.TextMatrix(row, kLabelColumn) == label;
}

bool IsUsedIn(const Session& session, int row, const std::string& label) {
  return session.OperandOf(row) == label &&
         session.Table1.TextMatrix(row, kOpcodeColumn).size() == kThreeByteCell;
}

}  // namespace

Rules::Rules(const Session& session) : session_(session) {
  for (const std::string_view name : kBoxes) {
    if (const Control* const box = session.ProgrammingPanel.Find(name)) boxes_.push_back(box);
  }
}

std::string Rules::StrayBox() const {
  const std::vector<std::string_view> allowed = BoxesOf(session_.CurrentPanelState);
  for (const Control* box : boxes_) {
    if (box->visible() && std::ranges::find(allowed, box->name()) == allowed.end()) {
      return box->name() + " is open in state " +
             std::to_string(static_cast<int>(session_.CurrentPanelState));
    }
  }
  return {};
}

std::string Rules::Broken() const {
  struct Rule {
    const char* text;
    bool holds;
  };
  const int rows = session_.Table1.Rows();
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
  };
  for (const Rule& rule : rules) {
    if (!rule.holds) return std::string("no more: ") + rule.text;
  }
  return StrayBox();
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
      if (IsPlacedIn(session_, row, label)) line = row;
      used = used || IsUsedIn(session_, row, label);
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
