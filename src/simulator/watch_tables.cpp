#include "simulator/watch_tables.h"

#include <array>

#include "platform/failure.h"
#include "program/vocabulary.h"

namespace quilla {
namespace {

constexpr int kInterruptRows = 8;
constexpr int kInstructionRows = 2;
constexpr int kTitleRows = 1;

constexpr const char* kAddressHeading = "Address";
constexpr const char* kValueHeading = "Value";
constexpr const char* kZeroByte = "00";
constexpr const char* kLineLevel = "1";

struct RegisterStart {
  const char* title;
  const char* value;
};

// The rows of RegisterTable, its heading and an empty last row included.
constexpr std::array<RegisterStart, 20> kRegisterStarts = {{
    {"Registers", kValueHeading},
    {"A", "00"},
    {"B", "00"},
    {"C", "00"},
    {"BC", "0000"},
    {"D", "00"},
    {"E", "00"},
    {"DE", "0000"},
    {"H", "00"},
    {"L", "00"},
    {"HL", "0000"},
    {"M(0000)", "00"},
    {"SP", "FF00"},
    {"PC", "0000"},
    {"Zero", "0"},
    {"Sign", "0"},
    {"Parity", "0"},
    {"Carry", "0"},
    {"Aux. Carry", "0"},
    {"", ""},
}};

constexpr std::array<const char*, 7> InterruptList = {"Interrupts", "TRAP", "RST 7.5", "RST 6.5",
                                                      "RST 5.5",    "INTR", "INTA'"};

constexpr std::array<const char*, kInstructionColumns> HeadingsList = {"Label", "Addr.",
                                                                       "Mnemonics", "Opcode"};
constexpr std::array<int, kInstructionColumns> ColWidthList = {0, 600, 1680, 1080};
constexpr std::array<int, kInstructionColumns> kInstructionAlignments = {
    kAlignCentreTop, kAlignCentreTop, kAlignLeft, kAlignLeft};

// Fills a table of two columns: a heading, then a row for each of `cells` cells.
void LoadCells(Grid& table, int cells, int address_digits) {
  table.SetRows(cells + 1);
  table.SetTextMatrix(0, kTitleColumn, kAddressHeading);
  table.SetTextMatrix(0, kValueColumn, kValueHeading);
  for (int cell = 0; cell < cells; ++cell) {
    table.SetTextMatrix(cell + 1, kTitleColumn, PaddedHexText(cell, address_digits));
    table.SetTextMatrix(cell + 1, kValueColumn, kZeroByte);
  }
}

int PortRow(Number port) {
  if (port < 0 || port >= kPortCount) throw Failure(ErrorNumber::kOutsideTable);
  return static_cast<int>(port) + 1;
}

}  // namespace

WatchTables::WatchTables(Control* parent) : window(parent) {
  for (Grid* table : AllTables()) table->SetFixedRows(kTitleRows);
  for (Grid* table : {&RegisterTable, &MemoryTable, &PortTable, &InterruptTable}) {
    table->SetColAlignment(kTitleColumn, kAlignCentreTop);
    table->SetColAlignment(kValueColumn, kAlignCentreTop);
  }
  for (int column = 0; column < kInstructionColumns; ++column) {
    const auto position = static_cast<std::size_t>(column);
    InstructionTable.SetColWidth(column, ColWidthList[position]);
    InstructionTable.SetColAlignment(column, kInstructionAlignments[position]);
  }
}

void WatchTables::Load() {
  LoadRegisters();
  LoadCells(MemoryTable, kAddressSpace, kAddressDigits);
  LoadCells(PortTable, kPortCount, kByteDigits);
  InstructionTable.SetRows(kInstructionRows);
  for (int column = 0; column < kInstructionColumns; ++column) {
    InstructionTable.SetTextMatrix(0, column, HeadingsList[static_cast<std::size_t>(column)]);
  }
  LoadInterrupts();
}

void WatchTables::LoadRegisters() {
  RegisterTable.SetRows(static_cast<int>(kRegisterStarts.size()));
  int row = 0;
  for (const auto& [title, value] : kRegisterStarts) {
    RegisterTable.SetTextMatrix(row, kTitleColumn, title);
    SetReg(row, value);
    ++row;
  }
}

void WatchTables::LoadInterrupts() {
  InterruptTable.SetRows(kInterruptRows);
  int row = 0;
  for (const char* title : InterruptList) InterruptTable.SetTextMatrix(row++, kTitleColumn, title);
  InterruptTable.SetTextMatrix(0, kValueColumn, kValueHeading);
  for (row = kRowTrap; row < kInterruptRows; ++row) {
    InterruptTable.SetTextMatrix(row, kValueColumn, kLineLevel);
  }
  InterruptTable.PaintBack(kRowTrap, kTitleColumn, kEnabledColor);
  for (row = kRowRst75; row <= kRowIntr; ++row) {
    InterruptTable.PaintBack(row, kTitleColumn, kMaskedColor);
  }
}

void WatchTables::Empty() {
  for (Grid* table : AllTables()) table->SetRows(0);
}

const std::string& WatchTables::PortText(Number port) const {
  return PortTable.TextMatrix(PortRow(port), kValueColumn);
}

void WatchTables::SetPort(Number port, std::string_view text) {
  PortTable.SetTextMatrix(PortRow(port), kValueColumn, text);
}

const std::string& WatchTables::OpcodeText() const {
  return InstructionTable.TextMatrix(kInstructionRow, kOpcodeColumn);
}

int WatchTables::MemoryRow(Number row) {
  if (row < 0 || row > kAddressSpace) throw Failure(ErrorNumber::kOutsideTable);
  return static_cast<int>(row);
}

}  // namespace quilla
