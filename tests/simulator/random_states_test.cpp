// Every opcode from states that no program should reach: a step either ends or fails, and the
// tables keep their shape.
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

#include "simulator/lab.h"

namespace quilla {
namespace {

class Dice {
 public:
  int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine_); }
  std::string Byte() { return PaddedHexText(Below(0x100), kByteDigits); }
  std::string Word() { return AddressText(Below(kAddressSpace)); }
  std::string Edge() {
    static constexpr std::array kEdges = {"0000", "0001", "0002", "FFFD", "FFFE", "FFFF"};
    return kEdges[static_cast<std::size_t>(Below(static_cast<int>(kEdges.size())))];
  }
  /// A text that a cell should not hold.
  std::string Odd() {
    static constexpr std::array kOdd = {"",   "X",        "Value",     "-1", "g0",  "5",
                                        "1F", "7FFFFFFF", "0FFFFFFFF", "FF", "100", "\xC3\xA9"};
    return kOdd[static_cast<std::size_t>(Below(static_cast<int>(kOdd.size())))];
  }

 private:
  std::mt19937 engine_{8085};
};

void ExpectWholeTables(const WatchTables& tables) {
  ASSERT_EQ(tables.RegisterTable.Rows(), 20);
  ASSERT_EQ(tables.MemoryTable.Rows(), 65537);
  ASSERT_EQ(tables.PortTable.Rows(), 257);
  ASSERT_EQ(tables.InterruptTable.Rows(), 8);
  ASSERT_EQ(tables.InstructionTable.Rows(), 2);
}

constexpr int kOpcodes = 0x100;

TEST(RandomStatesTest, AStepFromAWellFormedStateShowsWhereItStands) {
  constexpr int kRounds = 12;
  Lab lab;
  Dice dice;
  for (int address = 0; address < kAddressSpace; ++address) lab.tables.SetMem(address, dice.Byte());
  for (int round = 0; round < kRounds * kOpcodes; ++round) {
    const int op = round % kOpcodes;
    for (const std::string& start : {std::string("0000"), std::string("FFFF"), dice.Word()}) {
      SCOPED_TRACE(PaddedHexText(op, kByteDigits) + " at " + start);
      for (const int row : {kRowA, kRowB, kRowC, kRowD, kRowE, kRowH, kRowL}) {
        lab.tables.SetReg(row, dice.Byte());
      }
      for (int row = kRowZero; row <= kRowAuxCarry; ++row) {
        lab.tables.SetReg(row, std::to_string(dice.Below(2)));
      }
      lab.tables.SetReg(kRowSP, dice.Below(2) == 0 ? dice.Edge() : dice.Word());
      lab.machine.UpdateRegisterTable();
      lab.machine.Reset();
      lab.Load(static_cast<int>(NumberOf(start)),
               PaddedHexText(op, kByteDigits) + " " + dice.Byte() + " " + dice.Byte());
      if (!lab.Step() || lab.machine.Halted) continue;
      ASSERT_GE(lab.machine.PCValue, 0);
      ASSERT_LE(lab.machine.PCValue, kTopAddress);
      ASSERT_EQ(lab.Text("PC"), AddressText(lab.machine.PCValue));
      ASSERT_EQ(lab.OnView(1), lab.Text("PC"));
      ASSERT_EQ(lab.OnView(3).substr(0, 2), lab.tables.MemText(lab.machine.PCValue));
    }
  }
  ExpectWholeTables(lab.tables);
}

TEST(RandomStatesTest, AStepFromAnyTextsEndsOrFails) {
  constexpr int kRounds = 60;
  constexpr int kSpoiltCells = 300;
  Lab lab;
  Dice dice;
  for (int cell = 0; cell < kSpoiltCells; ++cell) {
    lab.tables.SetMemRow(dice.Below(kAddressSpace + 1), dice.Odd());
    lab.tables.SetMemRow(dice.Below(8), dice.Odd());
    lab.tables.SetMemRow(kAddressSpace - dice.Below(8), dice.Odd());
    lab.tables.SetPort(dice.Below(kPortCount), dice.Odd());
  }
  for (int round = 0; round < kRounds * kOpcodes; ++round) {
    for (int row = kRowA; row <= kRowAuxCarry; ++row) {
      const int kind = dice.Below(4);
      if (kind == 0) lab.tables.SetReg(row, dice.Odd());
      if (kind == 1) lab.tables.SetReg(row, dice.Edge());
      if (kind == 2) lab.tables.SetReg(row, dice.Byte());
    }
    lab.machine.Reset();
    std::string bytes = PaddedHexText(round % kOpcodes, kByteDigits);
    for (int i = dice.Below(3); i > 0; --i) bytes.append(" ").append(dice.Byte());
    lab.Load(dice.Below(2) == 0 ? 0 : kTopAddress, bytes);
    lab.Step();
    lab.Step();
  }
  ExpectWholeTables(lab.tables);
}

}  // namespace
}  // namespace quilla
