#include "symbols/string_lists.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

#include "program/opcode_cell.h"

namespace quilla {
namespace {

bool IsNameCharacter(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z'); }

/// The operand strings of all rows but the first whose Opcode cell has `length` characters.
std::unordered_set<std::string_view> OperandsOfLength(const Session& session, std::size_t length) {
  std::unordered_set<std::string_view> operands;
  operands.reserve(session.LabelCombo.items().size());
  for (int row = 1; row < session.Table1.Rows(); ++row) {
    const std::string& operand = session.OperandOf(row);
    if (session.Table1.TextMatrix(row, kOpcodeColumn).size() == length) {
      operands.insert(operand);
    }
  }
  return operands;
}

/// The first row, row 0 aside, that each text of the Label column stands in.
std::unordered_map<std::string_view, int> PlacesOfLabels(const Session& session) {
  std::unordered_map<std::string_view, int> places;
  places.reserve(session.LabelCombo.items().size());
  for (int row = 1; row < session.Table1.Rows(); ++row) {
    const std::string& label = session.Table1.TextMatrix(row, kLabelColumn);
    places.try_emplace(label, row);
  }
  return places;
}

}  // namespace

bool IsGoodName(std::string_view name) {
  return !name.empty() && name.front() >= 'a' &&
         std::all_of(name.begin(), name.end(), IsNameCharacter);
}

std::unordered_map<std::string_view, int> IndexOf(const TextList& list) {
  std::unordered_map<std::string_view, int> index;
  index.reserve(list.items().size());
  for (int i = 0; i < list.Count(); ++i) index.emplace(list[i], i);
  return index;
}

StringLists::StringLists(Session& session, StateMachine& states)
    : session_(session), states_(states) {
  session_.menu.DeleteUnusedLabels.Click = [this] { DeleteUnusedLabels_Click(); };
}

bool StringLists::IsTaken(const std::string& name) const {
  return session_.LabelCombo.Find(name) >= 0 || session_.XXCombo.Find(name) >= 0;
}

void StringLists::UpdateLabels() {
  const auto places = PlacesOfLabels(session_);
  const auto operands = OperandsOfLength(session_, kThreeByteCell);
  for (int i = 0; i < session_.LabelCombo.Count(); ++i) {
    const std::string& label = session_.LabelCombo[i];
    const auto place = places.find(label);
    const bool placed = place != places.end();
    session_.LabelPlacedList.Set(i, placed ? kYesFlag : kNoFlag);
    session_.LabelLineList.Set(i, placed ? std::to_string(place->second) : kNoFlag);
    session_.LabelUsedList.Set(i, operands.contains(label) ? kYesFlag : kNoFlag);
  }
  CopyLabels();
}

void StringLists::CopyLabels() {
  for (ComboBox* copy : {&session_.FindCombo, &session_.PlaceCombo, &session_.ReplaceCombo}) {
    copy->Assign(session_.LabelCombo.items());
  }
}

void StringLists::DeleteUnusedLabels_Click() {
  UpdateLabels();
  std::vector<bool> unused(session_.LabelCombo.items().size());
  for (int i = 0; i < session_.LabelCombo.Count(); ++i) {
    unused[static_cast<std::size_t>(i)] =
        session_.LabelPlacedList[i] == kNoFlag && session_.LabelUsedList[i] == kNoFlag;
  }
  for (TextList* list :
       {static_cast<TextList*>(&session_.LabelCombo), &session_.LabelUsedList,
        &session_.LabelPlacedList, &session_.LabelLineList, &session_.LabelEqtList}) {
    list->RemoveMarked(unused);
  }
  CopyLabels();
  DeleteUnusedVariables();
  session_.ShowInformation("Unused strings have been deleted.");
  states_.ReturnToReady();
}

void StringLists::DeleteUnusedVariables() {
  const auto operands = OperandsOfLength(session_, kTwoByteCell);
  std::vector<bool> unused;
  for (const std::string& variable : session_.XXCombo.items()) {
    unused.push_back(!operands.contains(variable));
  }
  session_.XXCombo.RemoveMarked(unused);
  session_.XXEqtList.RemoveMarked(unused);
}

}  // namespace quilla
