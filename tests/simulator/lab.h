// A machine on the bench: its state is set and read in words such as "A=12 SP=FF00 [2000]=3E", a
// register, a flag or a memory cell each.
#ifndef QUILLA_SIMULATOR_LAB_H_
#define QUILLA_SIMULATOR_LAB_H_

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/failure.h"
#include "simulator/machine.h"
#include "simulator/watch_tables.h"

namespace quilla {

inline std::vector<std::string> SplitWords(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

class Lab {
 public:
  Lab() {
    tables.Load();
    for (int row = 0; row < tables.RegisterTable.Rows(); ++row) {
      start_registers_.push_back(tables.RegText(row));
    }
  }

  /// Takes registers, memory and machine back to the start, which is quicker than a new lab.
  void Restart() {
    int row = 0;
    for (const std::string& text : start_registers_) tables.SetReg(row++, text);
    tables.SetMemRow(0, "Value");
    for (int address = 0; address < kAddressSpace; ++address) {
      if (tables.MemText(address) != "00") tables.SetMem(address, "00");
    }
    machine.Reset();
    boxes.clear();
  }

  /// Writes the cells that the words name, nothing else.
  void Set(const std::string& words) {
    for (const std::string& word : SplitWords(words)) {
      const auto [name, text] = Split(word);
      const auto [grid, row] = Find(name);
      grid->SetTextMatrix(row, kValueColumn, text);
    }
  }

  /// Puts an instruction into memory, wrapping at the top, and on view as the next one.
  void Load(int address, const std::string& bytes) {
    const std::vector<std::string> texts = SplitWords(bytes);
    std::string cell;
    int next = address;
    for (const std::string& text : texts) {
      tables.SetMem(next++ & kTopAddress, text);
      cell += (cell.empty() ? "" : "   ") + text;
    }
    tables.InstructionTable.SetTextMatrix(kInstructionRow, 3, cell);
    machine.PCValue = address;
    machine.InstLength = static_cast<int>(texts.size());
  }

  /// Runs one step; false if it failed.
  bool Step() {
    try {
      machine.Execute();
    } catch (const Failure&) {
      return false;
    }
    return true;
  }

  /// Checks the cells that the words name.
  void Expect(const std::string& words) const {
    for (const std::string& word : SplitWords(words)) {
      const auto [name, text] = Split(word);
      EXPECT_EQ(Text(name), text) << "in " << name;
    }
  }

  std::string Text(const std::string& name) const {
    const auto [grid, row] = Find(name);
    return grid->TextMatrix(row, kValueColumn);
  }
  /// A column of the instruction on view.
  std::string OnView(int column) const {
    return tables.InstructionTable.TextMatrix(kInstructionRow, column);
  }

  // Reading a cell by its name finds it as writing does.
  mutable WatchTables tables{nullptr};
  std::vector<std::string> boxes;
  Machine machine{tables, [this](const std::string& text) { boxes.push_back(text); }};

 private:
  static std::pair<std::string, std::string> Split(const std::string& word) {
    const std::size_t sign = word.find('=');
    return {word.substr(0, sign), word.substr(sign + 1)};
  }

  std::pair<Grid*, int> Find(const std::string& name) const {
    static const std::map<std::string, int> kRows = {
        {"A", kRowA},         {"B", kRowB},          {"C", kRowC},       {"BC", kRowBC},
        {"D", kRowD},         {"E", kRowE},          {"DE", kRowDE},     {"H", kRowH},
        {"L", kRowL},         {"HL", kRowHL},        {"M", kRowM},       {"SP", kRowSP},
        {"PC", kRowPC},       {"Zero", kRowZero},    {"Sign", kRowSign}, {"Parity", kRowParity},
        {"Carry", kRowCarry}, {"Aux", kRowAuxCarry},
    };
    if (name == "[heading]") return {&tables.MemoryTable, 0};
    if (name[0] == '[') {
      return {&tables.MemoryTable, static_cast<int>(NumberOf(name.substr(1, name.size() - 2))) + 1};
    }
    return {&tables.RegisterTable, kRows.at(name)};
  }

  std::vector<std::string> start_registers_;
};

}  // namespace quilla

#endif  // QUILLA_SIMULATOR_LAB_H_
