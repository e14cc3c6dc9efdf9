// The tables of the watch window. Their texts are the state of the simulated machine: a register, a
// flag, a memory cell and a port are each a cell of hexadecimal text, read and written as it
// stands.
#ifndef QUILLA_SIMULATOR_WATCH_TABLES_H_
#define QUILLA_SIMULATOR_WATCH_TABLES_H_

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/grid.h"
#include "platform/number_text.h"

namespace quilla {

/// A number of the machine. Texts give it 32 bits with sign; sums need room beyond that.
using Number = std::int64_t;

inline constexpr int kAddressSpace = 0x10000;
inline constexpr int kTopAddress = kAddressSpace - 1;
inline constexpr int kPortCount = 0x100;

/// The columns of all tables but `InstructionTable`, whose columns are those of the program.
enum WatchColumn : int { kTitleColumn, kValueColumn };
inline constexpr int kWatchColumns = 2;
inline constexpr int kInstructionColumns = 4;

/// The rows of `RegisterTable`.
enum RegisterRow : int {
  kRowA = 1,
  kRowB,
  kRowC,
  kRowBC,
  kRowD,
  kRowE,
  kRowDE,
  kRowH,
  kRowL,
  kRowHL,
  kRowM,
  kRowSP,
  kRowPC,
  kRowZero,
  kRowSign,
  kRowParity,
  kRowCarry,
  kRowAuxCarry,
};

/// The registers of a pair stand above it: low next to it, high above low.
inline constexpr int kLowAbovePair = 1;
inline constexpr int kHighAbovePair = 2;

/// The rows of `InterruptTable`, from the line of highest rank.
enum InterruptRow : int { kRowTrap = 1, kRowRst75, kRowRst65, kRowRst55, kRowIntr };

/// The data row of `InstructionTable`.
inline constexpr int kInstructionRow = 1;

/// The number that a text stands for. Fails as HexValue does.
inline Number NumberOf(std::string_view text) { return static_cast<std::int32_t>(HexValue(text)); }

struct WatchTables {
  explicit WatchTables(Control* parent);

  Control* window;  // which shows the tables
  Grid RegisterTable{window, "RegisterTable", kWatchColumns};
  Grid MemoryTable{window, "MemoryTable", kWatchColumns};
  Grid PortTable{window, "PortTable", kWatchColumns};
  Grid InterruptTable{window, "InterruptTable", kWatchColumns};
  Grid InstructionTable{window, "InstructionTable", kInstructionColumns};

  /// Fills the tables, which are empty, with their start values.
  void Load();
  /// Takes all rows away.
  void Empty();

  const std::string& RegText(int row) const { return RegisterTable.TextMatrix(row, kValueColumn); }
  void SetReg(int row, std::string_view text) {
    RegisterTable.SetTextMatrix(row, kValueColumn, text);
  }
  Number RegValue(int row) const { return NumberOf(RegText(row)); }
  /// The value of a flag, which is decimal text.
  Number FlagValue(int row) const { return DecimalValue(RegText(row)); }

  /// Memory by the row of the table. Rows outside it fail with `kOutsideTable`.
  const std::string& MemRowText(Number row) const {
    return MemoryTable.TextMatrix(MemoryRow(row), kValueColumn);
  }
  void SetMemRow(Number row, std::string_view text) {
    MemoryTable.SetTextMatrix(MemoryRow(row), kValueColumn, text);
  }
  /// Memory by address: the cell lies one row below its address, under the heading.
  const std::string& MemText(Number address) const { return MemRowText(address + 1); }
  void SetMem(Number address, std::string_view text) { SetMemRow(address + 1, text); }

  const std::string& PortText(Number port) const;
  void SetPort(Number port, std::string_view text);

  /// The bytes of the instruction on view.
  const std::string& OpcodeText() const;

 private:
  /// A row as the grid takes it. Fails with `kOutsideTable` for one that memory does not have.
  static int MemoryRow(Number row);

  std::array<Grid*, 5> AllTables() {
    return {&RegisterTable, &MemoryTable, &PortTable, &InterruptTable, &InstructionTable};
  }
  void LoadRegisters();
  void LoadInterrupts();
};

}  // namespace quilla

#endif  // QUILLA_SIMULATOR_WATCH_TABLES_H_
