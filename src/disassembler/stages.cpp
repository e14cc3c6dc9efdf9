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

constexpr char kVariablePrefix = 'v';
constexpr char kLabelPrefix = 'a';
constexpr std::string_view kBeforeOperand = "  ";

/// The names of a prefix with the numbers from 0 on, counted in their digits and in `next_number`.
class NumberedNames {
 public:
  NumberedNames(char prefix, int& next_number) : next_{prefix, '0'}, next_number_(next_number) {
    next_number_ = 0;
  }

  /// Adds the next name to the names.
  const std::string& AddTo(std::vector<std::string>& names) {
    names.push_back(next_);
    ++next_number_;
    std::size_t digit = next_.size() - 1;
    while (next_[digit] == '9') next_[digit--] = '0';
    if (digit > 0) {
      ++next_[digit];
    } else {
      next_.insert(1, 1, '1');
    }
    return names.back();
  }

 private:
  std::string next_;
  int& next_number_;
};

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
    if (address.size() != kAddressDigits) return OtherSlotOf(address);
    std::size_t number = 0;
    for (const char digit : address) {
      const int value = DigitValue(digit);
      if (value < 0 || digit > 'F') return OtherSlotOf(address);
      number = number * kDigitValues + static_cast<std::size_t>(value);
    }
    return table_[number];
  }
  int& OtherSlotOf(std::string_view address) {
    return others_.emplace(address, kNone).first->second;
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
    return new_variables_.AddTo(variables_);
  }

  /// The first label with this address, or a new one.
  const std::string& LabelFor(std::string address) {
    const int place = places_.Add(address, next_place_);
    if (place == next_place_) {
      ++next_place_;
      addresses_.push_back(std::move(address));
      new_labels_.AddTo(labels_);
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
  NumberedNames new_variables_{kVariablePrefix, session_.NextVariableNumber};
  NumberedNames new_labels_{kLabelPrefix, session_.NextLabelNumber};
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
  OperandNames names(session);
  for (int row = 0; row < table.Rows(); ++row) {
    const std::string& cell = table.TextMatrix(row, kOpcodeColumn);
    if (cell.empty() || session.IsOrigin(row)) continue;
    if (!layout.InstructionFlag.at(static_cast<std::size_t>(row))) {
      table.SetTextMatrix(row, kMnemonicColumn, kDataMnemonic);
      continue;
    }
    const std::string_view mnemonic = MnemonicsLUTList(OpcodeOf(cell));
    std::string_view operand;
    if (HasVariable(cell)) operand = names.VariableFor(ByteAt(cell, 1));
    if (HasLabel(cell)) operand = names.LabelFor(AddressIn(cell));
    const std::string_view blanks = operand.empty() ? std::string_view() : kBeforeOperand;
    table.JoinTextMatrix(row, kMnemonicColumn, {mnemonic, blanks, operand});
    session.StringTable.SetTextMatrix(row, 0, operand);
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
