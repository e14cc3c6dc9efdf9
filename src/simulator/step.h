// One instruction under way: its opcode, the operands that the opcode and the bytes on view name,
// and the flags that it will leave behind.
#ifndef QUILLA_SIMULATOR_STEP_H_
#define QUILLA_SIMULATOR_STEP_H_

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "program/opcode_cell.h"
#include "simulator/machine.h"
#include "simulator/watch_tables.h"

namespace quilla {

/// How a step ends.
enum class StepEnd {
  kNormal,    // flags, refresh, on to the instruction behind this one
  kTransfer,  // straight to the instruction that PCValue names
  kHalt,      // nothing more, the instruction stays on view
};

/// Bits of FlagMask, and of FlagBits for the last two.
enum Flag : unsigned {
  kZeroFlag = 1,
  kSignFlag = 2,
  kParityFlag = 4,
  kCarryFlag = 8,
  kAuxCarryFlag = 16,
  kAllFlags = kZeroFlag | kSignFlag | kParityFlag | kCarryFlag | kAuxCarryFlag,
};

/// The row of RegisterTable for a register code and for a pair code of an opcode.
inline constexpr std::array<int, 8> RList = {kRowB, kRowC, kRowD, kRowE,
                                             kRowH, kRowL, kRowM, kRowA};
inline constexpr std::array<int, 4> RP1_2List = {kRowBC, kRowDE, kRowHL, kRowSP};

/// Whether a text has one to three characters of the four of a word.
inline bool IsShortWord(std::string_view text) { return !text.empty() && text.size() < 4; }

/// Fills a short word up with zeros in front.
inline std::string PadWord(std::string text) {
  if (IsShortWord(text)) text.insert(0, kAddressDigits - text.size(), '0');
  return text;
}

struct Step {
  Machine& machine;
  WatchTables& tables;
  int Op = 0;
  /// The flags that the step rewrites, and what becomes of the carries among them. Zero, Sign and
  /// Parity are those of Result.
  unsigned FlagMask = 0;
  unsigned FlagBits = 0;
  Number Result = 0;

  int Dest() const { return RList[static_cast<std::size_t>(Op >> 3 & 7)]; }
  int Src() const { return RList[static_cast<std::size_t>(Op & 7)]; }
  int Pair() const { return RP1_2List[static_cast<std::size_t>(Op >> 4 & 3)]; }
  /// The bit that tells a variant from its plain form, a condition from its opposite.
  Number Variant() const { return Op >> 3 & 1; }

  /// The operands on view: the texts of the second and the third byte, and the word they make.
  std::string_view ByteOperand() const { return ByteAt(tables.OpcodeText(), 1); }
  std::string_view HighByteOperand() const { return ByteAt(tables.OpcodeText(), 2); }
  Number WordOperand() const { return NumberOf(AddressIn(tables.OpcodeText())); }

  const std::string& RegText(int row) const { return tables.RegText(row); }
  Number RegValue(int row) const { return tables.RegValue(row); }
  void SetReg(int row, std::string_view text) { tables.SetReg(row, std::string(text)); }
  /// Writes `Dest`, which for M is the memory cell that HL points at, never the row of its copy.
  void SetDest(std::string_view text) {
    if (Dest() == kRowM) {
      tables.SetMem(RegValue(kRowHL), std::string(text));
    } else {
      SetReg(Dest(), text);
    }
  }
  /// Writes a pair row and the rows of its halves; SP has none.
  void SetPair(int pair, Number value) {
    const std::string text = PadWord(HexText(value));
    SetReg(pair, text);
    if (pair == kRowSP) return;
    SetReg(pair - kLowAbovePair, text.substr(2, 2));
    SetReg(pair - kHighAbovePair, text.substr(0, 2));
  }
};

}  // namespace quilla

#endif  // QUILLA_SIMULATOR_STEP_H_
