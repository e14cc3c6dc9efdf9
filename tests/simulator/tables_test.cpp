// The tables: their start values, the program written into memory, the refresh of the registers,
// and the instruction on view.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "program/session.h"
#include "simulator/lab.h"
#include "simulator/simulation_start.h"

namespace quilla {
namespace {

std::string RowText(const Grid& grid, int row) {
  std::string text;
  for (int column = 0; column < grid.Cols(); ++column) {
    text += (column == 0 ? "" : "|") + grid.TextMatrix(row, column);
  }
  return text;
}

TEST(StartTest, TablesHoldTheirStartValues) {
  const Lab lab;
  const WatchTables& tables = lab.tables;
  const std::vector<std::string> registers = {
      "Registers|Value", "A|00",   "B|00",     "C|00",    "BC|0000",      "D|00",    "E|00",
      "DE|0000",         "H|00",   "L|00",     "HL|0000", "M(0000)|00",   "SP|FF00", "PC|0000",
      "Zero|0",          "Sign|0", "Parity|0", "Carry|0", "Aux. Carry|0", "|"};
  ASSERT_EQ(tables.RegisterTable.Rows(), static_cast<int>(registers.size()));
  for (int row = 0; row < tables.RegisterTable.Rows(); ++row) {
    EXPECT_EQ(RowText(tables.RegisterTable, row), registers[static_cast<std::size_t>(row)]);
  }
  const std::vector<std::pair<int, std::string>> memory = {
      {0, "Address|Value"}, {1, "0000|00"},    {16, "000F|00"},   {17, "0010|00"},
      {257, "0100|00"},     {4096, "0FFF|00"}, {4097, "1000|00"}, {65536, "FFFF|00"}};
  ASSERT_EQ(tables.MemoryTable.Rows(), 65537);
  for (const auto& [row, text] : memory) EXPECT_EQ(RowText(tables.MemoryTable, row), text);
  const std::vector<std::pair<int, std::string>> ports = {
      {0, "Address|Value"}, {1, "00|00"}, {16, "0F|00"}, {17, "10|00"}, {256, "FF|00"}};
  ASSERT_EQ(tables.PortTable.Rows(), 257);
  for (const auto& [row, text] : ports) EXPECT_EQ(RowText(tables.PortTable, row), text);
  const std::vector<std::string> lines = {"Interrupts|Value", "TRAP|1", "RST 7.5|1", "RST 6.5|1",
                                          "RST 5.5|1",        "INTR|1", "INTA'|1",   "|1"};
  ASSERT_EQ(tables.InterruptTable.Rows(), static_cast<int>(lines.size()));
  for (int row = 0; row < tables.InterruptTable.Rows(); ++row) {
    EXPECT_EQ(RowText(tables.InterruptTable, row), lines[static_cast<std::size_t>(row)]);
  }
  EXPECT_EQ(RowText(tables.InstructionTable, 0), "Label|Addr.|Mnemonics|Opcode");
  EXPECT_EQ(RowText(tables.InstructionTable, 1), "|||");
}

struct ProgramRow {
  const char* address;
  const char* bytes;
};

TEST(WriteProgramTest, TakesRowsByTheLengthOfTheirBytes) {
  struct Case {
    std::vector<ProgramRow> rows;
    const char* cells;
    bool written = true;
  };
  const std::vector<Case> cases = {
      {{{"8000", ""}, {"2000", "3E   05"}, {"2002", "76"}}, "[2000]=3E [2001]=05 [2002]=76"},
      {{{"2000", "C3   34   12"}}, "[2000]=C3 [2001]=34 [2002]=12"},
      {{{"2000", "C3   XX   XX"}}, "[2000]=C3 [2001]=XX [2002]=XX"},
      {{{"", "Opcode"}, {"2000", "7"}, {"2001", "C3   1"}, {"2002", "76"}},
       "[2000]=00 [2001]=00 [2002]=76"},
      {{{"2000", "76"}, {"", "76"}, {"2002", "76"}}, "[2000]=76 [2002]=00", false},
      {{{"FFFF", "3E   05"}, {"2000", "76"}}, "[FFFF]=3E [2000]=00", false},
  };
  for (const Case& expected : cases) {
    Lab lab;
    Grid program(nullptr, "Program", kProgramColumns);
    for (const ProgramRow& row : expected.rows) {
      program.AddItem({});
      program.SetTextMatrix(program.Rows() - 1, kAddressColumn, row.address);
      program.SetTextMatrix(program.Rows() - 1, kOpcodeColumn, row.bytes);
    }
    if (expected.written) {
      WriteProgram(program, lab.tables);
    } else {
      EXPECT_THROW(WriteProgram(program, lab.tables), Failure);
    }
    lab.Expect(expected.cells);
  }
}

TEST(RefreshTest, RepairsTheCellThatHLPointsAt) {
  Lab lab;
  lab.Set("H=20 L=01 [2000]=5 [2001]=7 SP=F A=C D=9 E=8");
  lab.machine.UpdateRegisterTable();
  lab.Expect("HL=2001 M=07 [2001]=07 [2000]=5 SP=000F A=0C D=09 E=08 DE=0098");
  EXPECT_EQ(lab.tables.RegisterTable.TextMatrix(kRowM, kTitleColumn), "M(2001)");
  EXPECT_EQ(RowText(lab.tables.RegisterTable, kRowAuxCarry + 1), "|");
}

TEST(DisassembleTest, ShowsTheInstruction) {
  struct Case {
    const char* address;
    const char* cells;
    const char* view;
    Number length;
  };
  const std::vector<Case> cases = {
      {"2000", "[2000]=3E [2001]=05", "|2000|MVI  A,  05h|3E   05", 2},
      {"2000", "[2000]=06 [2001]=05", "|2000|MVI  B,   05h|06   05", 2},
      {"2000", "[2000]=C3 [2001]=00 [2002]=20", "|2000|JMP  2000h|C3   00   20", 3},
      {"000f", "[000F]=31 [0010]=34 [0011]=12", "|000F|LXI  SP,  1234h|31   34   12", 3},
      {"0100", "[0100]=e3", "|0100|XTHL |e3", 1},
      {"FFFF", "[FFFF]=76", "|FFFF|HLT|76", 1},
      {"FFFD", "[FFFD]=CD", "|FFFD|CALL  0000h|CD   00   00", 3},
  };
  Lab lab;
  for (const auto& [address, cells, view, length] : cases) {
    lab.Restart();
    lab.Set(cells);
    lab.machine.StartAt(address);
    EXPECT_EQ(RowText(lab.tables.InstructionTable, kInstructionRow), view);
    EXPECT_EQ(lab.machine.InstLength, length);
    EXPECT_EQ(lab.Text("PC"), lab.OnView(kAddressColumn));
    EXPECT_TRUE(lab.boxes.empty());
  }
}

TEST(DisassembleTest, WarnsOfAnInvalidInstructionEachTime) {
  const std::string warning =
      "This is an invalid instruction. However, the processor will execute this instruction as a "
      "NOP instruction.";
  Lab lab;
  for (const char* op : {"08", "10", "18", "28", "38", "CB", "D9", "DD", "ED", "FD"}) {
    lab.Restart();
    lab.Set(std::string("[0001]=") + op);
    lab.machine.StartAt("0000");
    EXPECT_TRUE(lab.Step());
    EXPECT_EQ(RowText(lab.tables.InstructionTable, kInstructionRow), std::string("|0001|-|") + op);
    lab.machine.StartAt("0001");
    EXPECT_EQ(lab.boxes, std::vector<std::string>(2, warning));
  }
}

TEST(DisassembleTest, EndsAtTheReadThatFails) {
  struct Case {
    const char* address;
    const char* cells;
  };
  for (const auto& [address, cells] : std::vector<Case>{{"FFFF", "[FFFF]=3E"},
                                                        {"FFFF", "[FFFF]=C3"},
                                                        {"FFFE", "[FFFE]=C3"},
                                                        {"2000", "[2000]=XX"},
                                                        {"2000", "[2000]=100"}}) {
    Lab lab;
    lab.Load(0x1000, "3E 05");
    lab.machine.StartAt("1000");
    lab.Set(cells);
    EXPECT_THROW(lab.machine.StartAt(address), Failure);
    EXPECT_EQ(RowText(lab.tables.InstructionTable, kInstructionRow),
              std::string("|") + address + "|MVI  A,  05h|3E   05");
    EXPECT_EQ(lab.Text("PC"), address);
    EXPECT_EQ(lab.machine.InstLength, 2);
  }
}

TEST(StepTest, FailsBeforeAnyAddressIsAccepted) {
  Lab lab;
  EXPECT_FALSE(lab.Step());
  EXPECT_EQ(RowText(lab.tables.InstructionTable, kInstructionRow), "|||");
}

TEST(StepTest, SeesWhatTheProgramHasJustWritten) {
  Lab lab;
  lab.Set("[2000]=32 [2001]=03 [2002]=20 A=04");  // STA 2003h, which becomes INR B
  lab.machine.StartAt("2000");
  EXPECT_TRUE(lab.Step());
  EXPECT_EQ(lab.OnView(kMnemonicColumn), "INR  B");
}

}  // namespace
}  // namespace quilla
