#include "symbols/string_lists.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "platform/list_index.h"
#include "program/opcode_cell.h"

namespace quilla {
namespace {

bool IsNameCharacter(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z'); }

/// Which names are the operand string of a row, the first row aside, whose Opcode cell has `length`
/// characters: a flag for each position that the index gives.
std::vector<bool> UsedNames(const Session& session, const ListIndex& names, std::size_t length) {
  std::vector<bool> used(names.size());
  for (int row = 1; row < session.Table1.Rows(); ++row) {
    if (session.Table1.TextMatrix(row, kOpcodeColumn).size() != length) continue;
    const int name = names.Find(session.OperandOf(row));
    if (name != ListIndex::kNone) used[static_cast<std::size_t>(name)] = true;
  }
  return used;
}

/// The first row, row 0 aside, that each label stands in; 0 for one that stands nowhere.
std::vector<int> PlacesOfLabels(const Session& session, const ListIndex& labels) {
  std::vector<int> places(labels.size());
  for (int row = 1; row < session.Table1.Rows(); ++row) {
    const int label = labels.Find(session.Table1.TextMatrix(row, kLabelColumn));
    if (label == ListIndex::kNone) continue;
    int& place = places[static_cast<std::size_t>(label)];
    if (place == 0) place = row;
  }
  return places;
}

}  // namespace

bool IsGoodName(std::string_view name) {
  return !name.empty() && name.front() >= 'a' &&
         std::all_of(name.begin(), name.end(), IsNameCharacter);
}

StringLists::StringLists(Session& session, StateMachine& states)
    : session_(session), states_(states) {
  session_.menu.DeleteUnusedLabels.Click = [this] { DeleteUnusedLabels_Click(); };
}

bool StringLists::IsTaken(const std::string& name) const {
  return session_.LabelCombo.Find(name) >= 0 || session_.XXCombo.Find(name) >= 0;
}

void StringLists::UpdateLabels() {
  const ListIndex labels(session_.LabelCombo);
  const std::vector<int> places = PlacesOfLabels(session_, labels);
  const std::vector<bool> used = UsedNames(session_, labels, kThreeByteCell);
  for (int i = 0; i < session_.LabelCombo.Count(); ++i) {
    const auto label = static_cast<std::size_t>(labels.Find(session_.LabelCombo[i]));
    const bool placed = places[label] > 0;
    session_.LabelPlacedList.Set(i, placed ? kYesFlag : kNoFlag);
    session_.LabelLineList.Set(i, placed ? std::to_string(places[label]) : kNoFlag);
    session_.LabelUsedList.Set(i, used[label] ? kYesFlag : kNoFlag);
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
  const ListIndex variables(session_.XXCombo);
  const std::vector<bool> used = UsedNames(session_, variables, kTwoByteCell);
  std::vector<bool> unused;
  for (const std::string& variable : session_.XXCombo.items()) {
    unused.push_back(!used[static_cast<std::size_t>(variables.Find(variable))]);
  }
  session_.XXCombo.RemoveMarked(unused);
  session_.XXEqtList.RemoveMarked(unused);
}

}  // namespace quilla
