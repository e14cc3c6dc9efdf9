#include "disassembler/stages.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "isa/instruction_set.h"
#include "platform/number_text.h"
#include "program/opcode_cell.h"

namespace quilla {
namespace {

constexpr const char* kVariablePrefix = "v";
constexpr const char* kLabelPrefix = "a";
constexpr const char* kBeforeOperand = "  ";

std::string NumberedName(const char* prefix, int number) {
  return std::string(prefix).append(std::to_string(number));
}

/// The first place that each address was given. An address of four digits has its slot in a table,
/// which is quicker than a hash of up to 65,536 texts; any other text is hashed.
class FirstPlaces {
 public:
  static constexpr int kNone = -1;

  /// Gives the address this place unless it has one. Its place.
  int Add(std::string_view address, int place) {
    int& known = SlotOf(address);
    if (known == kNone) known = place;
    return known;
  }

  /// The place of the address, or kNone.
  int Find(std::string_view address) { return SlotOf(address); }

 private:
  int& SlotOf(std::string_view address) {
    bool is_plain = address.size() == kAddressDigits;
    std::size_t number = 0;
    for (const char digit : address) {
      is_plain = is_plain && DigitValue(digit) >= 0 && digit <= 'F';
      number = number * kDigitValues + static_cast<std::size_t>(DigitValue(digit));
    }
    return is_plain ? table_[number] : others_.emplace(address, kNone).first->second;
  }

  static constexpr std::size_t kDigitValues = 0x10;
  static constexpr std::size_t kAddresses = 0x10000;
  std::vector<int> table_ = std::vector<int>(kAddresses, kNone);
  std::unordered_map<std::string, int> others_;
};

/// The strings that operands are called by, those that the session has and new ones.
class OperandNames {
 public:
  explicit OperandNames(Session& session)
      : session_(session),
        labels_(session.LabelCombo.items()),
        addresses_(session.LabelEqtList.items()),
        variables_(session.XXCombo.items()),
        bytes_(session.XXEqtList.items()) {
    for (const std::string& address : addresses_) places_.Add(address, next_place_++);
    const std::size_t most = addresses_.size() + static_cast<std::size_t>(session.Table1.Rows());
    labels_.reserve(most);
    addresses_.reserve(most);
  }

  /// A new variable for a byte.
  const std::string& VariableFor(std::string_view byte) {
    bytes_.emplace_back(byte);
    return variables_.emplace_back(NumberedName(kVariablePrefix, session_.NextVariableNumber++));
  }

  /// The first label with this equivalent, or a new one.
  const std::string& LabelFor(std::string address) {
    const int place = places_.Add(address, next_place_);
    if (place == next_place_) {
      ++next_place_;
      addresses_.push_back(std::move(address));
      labels_.push_back(NumberedName(kLabelPrefix, session_.NextLabelNumber++));
    }
    return labels_[static_cast<std::size_t>(place)];
  }

  /// Gives the session all strings.
  void Store() {
    session_.LabelCombo.Assign(std::move(labels_));
    session_.LabelEqtList.Assign(std::move(addresses_));
    session_.XXCombo.Assign(std::move(variables_));
    session_.XXEqtList.Assign(std::move(bytes_));
  }

 private:
  Session& session_;
  std::vector<std::string> labels_;
  std::vector<std::string> addresses_;
  std::vector<std::string> variables_;
  std::vector<std::string> bytes_;
  FirstPlaces places_;  // in addresses_
  int next_place_ = 0;
};

}  // namespace

void CopyOpcodes(const ProgramLayout& layout, Session& session, Rows& rows, Origins& origins) {
  Grid& table = session.Table1;
  session.ClearStrings();
  rows.SetRows(session.LastLine + kSpareRows);
  session.CurrentRow = std::min(session.CurrentRow, table.Rows() - 1);
  table.Clear();
  session.StringTable.Clear();
  for (int row = 0; row <= session.LastLine; ++row) {
    table.SetTextMatrix(row, kOpcodeColumn, OpcodeCellOf(layout, row));
  }
  for (const std::string& entry : layout.OriginList) {
    const auto row = static_cast<int>(DecimalValue(entry.substr(kAddressDigits)));
    table.SetTextMatrix(row, kAddressColumn, entry.substr(0, kAddressDigits));
    table.SetTextMatrix(row, kLabelColumn, kOrigin);
    origins.ColorOrigin(row);
  }
}

void NameOperands(const ProgramLayout& layout, Session& session) {
  Grid& table = session.Table1;
  session.NextVariableNumber = 0;
  session.NextLabelNumber = 0;
  OperandNames names(session);
  for (int row = 0; row < table.Rows(); ++row) {
    const std::string& cell = table.TextMatrix(row, kOpcodeColumn);
    if (cell.empty() || session.IsOrigin(row)) continue;
    if (!layout.InstructionFlag.at(static_cast<std::size_t>(row))) {
      table.SetTextMatrix(row, kMnemonicColumn, kDataMnemonic);
      continue;
    }
    std::string mnemonic(MnemonicsLUTList(OpcodeOf(cell)));
    std::string operand;
    if (HasVariable(cell)) operand = names.VariableFor(ByteAt(cell, 1));
    if (HasLabel(cell)) operand = names.LabelFor(AddressIn(cell));
    if (!operand.empty()) mnemonic.append(kBeforeOperand).append(operand);
    table.SetTextMatrix(row, kMnemonicColumn, std::move(mnemonic));
    session.StringTable.SetTextMatrix(row, 0, std::move(operand));
  }
  names.Store();
}

void PlaceLabels(Session& session) {
  Grid& table = session.Table1;
  FirstPlaces rows;
  for (int row = 1; row < table.Rows(); ++row) {
    if (!session.IsOrigin(row)) rows.Add(table.TextMatrix(row, kAddressColumn), row);
  }
  for (int label = 0; label < session.LabelCombo.Count(); ++label) {
    const int row = rows.Find(session.LabelEqtList[label]);
    if (row == FirstPlaces::kNone) continue;
    table.SetTextMatrix(row, kLabelColumn, session.LabelCombo[label]);
  }
}

}  // namespace quilla
