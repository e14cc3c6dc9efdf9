#include "symbols/address_assignment.h"

#include "platform/number_text.h"
#include "program/opcode_cell.h"
#include "symbols/blocks.h"
#include "symbols/string_lists.h"

namespace quilla {
namespace {

constexpr std::int64_t kHighestAddress = 0xFFFF;

/// The 32-bit value of an address text: eight digits from 80000000 up are negative.
std::int32_t AddressValue(const std::string& text) {
  return static_cast<std::int32_t>(HexValue(text));
}

}  // namespace

AddressAssignment::AddressAssignment(Session& session, StateMachine& states, Rows& rows)
    : session_(session), states_(states), rows_(rows) {
  session_.menu.AssignAddress.Click = [this] { AssignAddress_Click(); };
  AddressTimer_.Fire = [this] { Assign_Address(true); };
}

void AddressAssignment::AssignAddress_Click() {
  session_.SetTip("Assigning Addresses . . .");
  AddressTimer_.Enable();
}

void AddressAssignment::Assign_Address(bool AddressMessageEnable) {
  AddressTimer_.Disable();  // by whatever way it came, the work is done now
  session_.AddressError = false;
  session_.OriginList.Clear();
  session_.LastAddressList.Clear();
  const ListIndex labels(session_.LabelCombo);
  if (AddressMessageEnable && !CheckStrings(labels)) return;
  int row = 0;
  do {
    std::int64_t last_address = 0;
    row = AssignBlock(row, labels, last_address);
    if (!AddressMessageEnable || session_.AddressError) return;
    session_.LastAddressList.Add(AddressText(last_address));
  } while (row < session_.Table1.Rows() - 1);
  PatchLabelOperands(labels);
  CheckOverlaps();
  states_.ReturnToReady();
}

bool AddressAssignment::CheckStrings(const ListIndex& labels) {
  const ListIndex variables(session_.XXCombo);
  for (const std::string& label : session_.LabelCombo.items()) {
    if (!variables.Contains(label)) continue;
    ReportError("The string '" + label + "' is used as both label and variable.");
    return false;
  }
  std::vector<int> rows_with(labels.size());
  for (int row = 0; row < session_.Table1.Rows(); ++row) {
    const int label = labels.Find(session_.Table1.TextMatrix(row, kLabelColumn));
    if (label != ListIndex::kNone) ++rows_with[static_cast<std::size_t>(label)];
  }
  for (const std::string& label : session_.LabelCombo.items()) {
    if (rows_with[static_cast<std::size_t>(labels.Find(label))] < 2) continue;
    ReportError("Compile error. There is more than one instance of the label '" + label +
                "' in the Label field.");
    return false;
  }
  return true;
}

int AddressAssignment::AssignBlock(int row, const ListIndex& labels, std::int64_t& last_address) {
  Grid& table = session_.Table1;
  const std::string origin = table.TextMatrix(row, kAddressColumn);
  session_.OriginList.Add(origin);
  const std::int64_t start = AddressValue(origin);
  std::int64_t address = start;
  int size = 0;
  for (++row; row <= table.Rows() - 2 && !session_.IsOrigin(row); ++row) {
    if (table.TextMatrix(row, kMnemonicColumn).empty()) continue;
    address += size;
    if (address > kHighestAddress) {
      ReportError("Compile error. Invalid address in origin " + AddressText(start) + "h.");
      rows_.NextLine(row);
      return row;
    }
    const std::string text = AddressText(address);
    table.SetTextMatrix(row, kAddressColumn, text);
    const std::string& label = table.TextMatrix(row, kLabelColumn);
    if (const int known = labels.Find(label); !label.empty() && known != ListIndex::kNone) {
      session_.LabelEqtList.Set(known, text);
    }
    // A cell of no known form is as long as the one before it.
    if (const int bytes = ByteCount(table.TextMatrix(row, kOpcodeColumn)); bytes > 0) size = bytes;
  }
  last_address = address + size - 1;
  return row;
}

void AddressAssignment::PatchLabelOperands(const ListIndex& labels) {
  // The last of labels of one name counts.
  std::vector<int> last_of(labels.size());
  for (int i = 0; i < session_.LabelCombo.Count(); ++i) {
    last_of[static_cast<std::size_t>(labels.Find(session_.LabelCombo[i]))] = i;
  }
  for (int row = 1; row < session_.Table1.Rows(); ++row) {
    const std::string& operand = session_.OperandOf(row);
    if (operand.empty()) continue;
    const int label = labels.Find(operand);
    if (label == ListIndex::kNone) continue;
    const int last = last_of[static_cast<std::size_t>(label)];
    session_.Table1.SetTextMatrix(
        row, kOpcodeColumn,
        WithLabel(session_.Table1.TextMatrix(row, kOpcodeColumn), session_.LabelEqtList[last]));
  }
}

void AddressAssignment::CheckOverlaps() {
  if (session_.OriginList.Count() < 2) return;
  session_.AddressError = false;
  std::vector<Block> blocks;
  blocks.reserve(session_.OriginList.items().size());
  for (int i = 0; i < session_.OriginList.Count(); ++i) {
    blocks.push_back(
        {AddressValue(session_.OriginList[i]), AddressValue(session_.LastAddressList[i])});
  }
  if (const auto overlap = FirstOverlap(blocks)) {
    ReportError("Address overlap in origins " + session_.OriginList[overlap->first] + "h and " +
                session_.OriginList[overlap->second] + "h.");
  }
  rows_.NextLine(1);
}

void AddressAssignment::ReportError(const std::string& text) {
  session_.AddressError = true;
  session_.ShowCritical(text);
}

}  // namespace quilla
