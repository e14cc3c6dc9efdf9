// Single steps of the machine, a line each, and its flags against a small model of their own.
#include <gtest/gtest.h>

#include <algorithm>
#include <bitset>
#include <functional>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "platform/failure_of.h"
#include "simulator/machine.h"
#include "simulator/watch_tables.h"

namespace quilla {
namespace {

/// A machine on the bench. Its cells are named in words such as "A=12 SP=FF00 [2000]=3E".
class Lab {
 public:
  Lab() {
    tables.Load();
    for (int row = 0; row <= kRowAuxCarry; ++row) starts_.push_back(tables.RegText(row));
  }

  /// Starts afresh; to load the tables anew would take long.
  void Reset() {
    machine.Reset();
    for (int row = kRowA; row <= kRowAuxCarry; ++row) {
      tables.SetReg(row, starts_[static_cast<std::size_t>(row)]);
    }
    tables.SetMemRow(0, "Value");
    for (int row = 1; row <= kAddressSpace; ++row) {
      if (tables.MemRowText(row) != "00") tables.SetMemRow(row, "00");
    }
  }
  void Set(const std::string& words) {
    ForEach(words, [](Grid& grid, int row, const std::string& text) {
      grid.SetTextMatrix(row, kValueColumn, text);
    });
  }
  /// Puts an instruction into memory, wrapping at the top, and on view as the next one.
  void Load(int address, const std::string& bytes) {
    std::istringstream words(bytes);
    std::string cell;
    machine.PCValue = address;
    machine.InstLength = 0;
    for (std::string byte; words >> byte; ++machine.InstLength) {
      tables.SetMem((address + machine.InstLength) & kTopAddress, byte);
      cell += (cell.empty() ? "" : "   ") + byte;
    }
    tables.InstructionTable.SetTextMatrix(kInstructionRow, kOpcodeColumn, cell);
  }
  /// Runs one step; false if it failed.
  bool Step() {
    return !FailureOf([this] { machine.Execute(); });
  }
  void Expect(const std::string& words) {
    ForEach(words, [](Grid& grid, int row, const std::string& text) {
      EXPECT_EQ(grid.TextMatrix(row, kValueColumn), text) << grid.name() << ' ' << row;
    });
  }

  WatchTables tables{nullptr};
  Machine machine{tables, [](const std::string&) {}};

 private:
  static constexpr int kOpcodeColumn = 3;

  std::vector<std::string> starts_;

  void ForEach(const std::string& words,
               const std::function<void(Grid&, int, const std::string&)>& act) {
    static const std::map<std::string, int> kRows = {
        {"A", kRowA},         {"B", kRowB},          {"C", kRowC},       {"BC", kRowBC},
        {"D", kRowD},         {"E", kRowE},          {"DE", kRowDE},     {"H", kRowH},
        {"L", kRowL},         {"HL", kRowHL},        {"M", kRowM},       {"SP", kRowSP},
        {"PC", kRowPC},       {"Zero", kRowZero},    {"Sign", kRowSign}, {"Parity", kRowParity},
        {"Carry", kRowCarry}, {"Aux", kRowAuxCarry},
    };
    std::istringstream stream(words);
    for (std::string word; stream >> word;) {
      const std::string name = word.substr(0, word.find('='));
      const std::string text = word.substr(name.size() + 1);
      if (name == "[heading]") {
        act(tables.MemoryTable, 0, text);
      } else if (name[0] == '[') {
        act(tables.MemoryTable, static_cast<int>(NumberOf(name.substr(1, name.size() - 2))) + 1,
            text);
      } else {
        act(tables.RegisterTable, kRows.at(name), text);
      }
    }
  }
};

/// Single steps: the state before, the instruction, the state after; "!" for a step that fails, "@"
/// for another address than 2000h.
constexpr const char* kSteps = R"(
# Data movement copies texts; M is read from its copy of the last refresh.
A=12: 47 > B=12 BC=1200 PC=2001 ; A=12 H=30 HL=3000: 77 > [3000]=12 M=12
HL=3000 M=77 [3000]=12 H=30: 7E > A=77 M=12 ; : 3E 7f > A=7f PC=2002
H=30 HL=3000: 36 05 > [3000]=05 M=05 ; : 01 34 12 > B=12 C=34 BC=1234 PC=2003
: 31 34 12 > SP=1234 ; A=9A DE=3000: 12 > [3000]=9A ; BC=3000 [3000]=9A: 0A > A=9A
H=12 L=34: 22 00 30 > [3000]=34 [3001]=12 ; L=34: 22 FF FF ! > [FFFF]=34
[3000]=34 [3001]=12: 2A 00 30 > H=12 L=34 HL=1234 ; [FFFF]=34: 2A FF FF ! > L=34 H=00
A=12: 32 00 30 > [3000]=12 ; [3000]=12: 3A 00 30 > A=12 ; HL=50A: F9 > SP=050A
# The refresh joins the pairs before it pads their halves.
B=04 C=0A: 04 > B=05 C=0A BC=050A ; B=04 C=0A: 0D > B=04 C=09 BC=0049
H=0A L=0B D=12 E=34: EB > D=0A E=0B DE=00AB H=12 L=34 HL=1234
H=04 L=0A [50A]=77: 24 > H=05 L=0A HL=050A M=77
@3000 H=20 L=01 [2000]=5 [2001]=7 SP=F D=9: 00 > HL=2001 M=07 [2001]=07 SP=000F D=09
H=XX B=01: 04 ! > B=2 HL=XX00
# Pairs.
BC=12FF Zero=0 Carry=1 Sign=1: 03 > B=13 C=00 BC=1300 Zero=0 Carry=1 Sign=1
HL=FFFF: 23 > H=00 L=00 HL=0000 ; SP=FFFF: 33 > SP=0000 ; DE=1000: 1B > D=0F E=FF DE=0FFF
BC=0000: 0B > B=FF C=FF BC=FFFF ; SP=0100: 3B > SP=00FF
H=80 HL=8000 Zero=1: 29 > H=00 L=00 HL=0000 Carry=1 Zero=1
HL=0001 SP=0FFE Carry=1: 39 > H=0F L=FF HL=0FFF Carry=0
# PUSH and POP keep the high register at the lower address; 0 and FFFFh meet the heading.
B=12 C=34: C5 > [FEFE]=12 [FEFF]=34 SP=FEFE ; D=05 E=0F: D5 > [FEFE]=05 [FEFF]=0F
H=12 L=34 SP=0000: E5 > [FFFE]=34 SP=FFFE ; B=12 C=34 SP=0001: C5 > [heading]=12 [0000]=34 SP=FFFF
B=12 C=34 SP=0002: C5 > [0000]=12 [0001]=34 SP=0000
SP=FEFE [FEFE]=12 [FEFF]=34: D1 > D=12 E=34 DE=1234 SP=FF00
SP=00F0 [00F0]=0A [00F1]=0B: C1 > B=0A C=0B BC=00AB SP=00F2
SP=FFFE [FFFE]=12: C1 ! > B=00 SP=FFFE ; SP=FFFF: E1 ! > H=00 SP=FFFF
SP=FEFE [FEFE]=12 [FEFF]=34 H=56 L=78: E3 > H=12 L=34 HL=1234 [FEFE]=56 [FEFF]=78 SP=FEFE
# PUSH PSW takes the accumulator as a decimal number.
A=12: F5 > [FEFE]=0C [FEFF]=02 SP=FEFE ; A=07: F5 > [FEFE]=07
A=99 Zero=1 Sign=1 Parity=1 Carry=1 Aux=1: F5 > [FEFE]=63 [FEFF]=D7
A=1E: F5 ! > [FEFE]=00 [FEFF]=00 SP=FF00 ; A=-1: F5 > [FEFE]=0FFFFFFFF [FEFF]=02
SP=FEFE [FEFE]=0C [FEFF]=D7: F1 > A=0C Zero=1 Sign=1 Parity=1 Carry=1 Aux=1 SP=FF00
SP=FEFE [FEFF]=29 Zero=1 Sign=1 Parity=1 Carry=0 Aux=1: F1 > A=00 Zero=0 Sign=0 Parity=0 Carry=1 Aux=0
# Transfers leave short texts and derived rows; addresses wrap each in its own way.
B=12 C=34 BC=0000 Carry=1: C3 00 30 > PC=3000 BC=0000 Carry=1 ; @FFFE [0000]=30: C3 00 > PC=3000
HL=3000: E9 > PC=3000 ; : CD 00 30 > [FEFF]=20 [FEFE]=03 SP=FEFE PC=3000
SP=0011: CD 00 30 > [0010]=20 [000F]=03 SP=F ; @FFFD : CD 00 30 > [FEFF]=00 [FEFE]=00 PC=3000
@FFFE [0000]=30: CD 00 > [FEFF]=FF [FEFE]=FF ; SP=0001: CD 00 30 ! > [0000]=20 SP=0001 PC=0000
SP=0000: CD 00 30 ! > [0000]=00 SP=0000 PC=0000
SP=FEFE [FEFE]=34 [FEFF]=12: C9 > PC=1234 SP=FF00 ; SP=0002 [0002]=34 [0003]=12: C9 > PC=1234 SP=4
SP=FFFF [FFFF]=34 [0000]=12: C9 > PC=1234 SP=1
SP=3000 [3000]=XX [3001]=12: C9 ! > PC=12XX SP=3000 ; : CF > [FEFF]=20 [FEFE]=03 SP=FEFE PC=0008
: FF > PC=0038 ; @FFFE [0000]=30 Zero=1: CA 00 ! > PC=0000
@FFFE [0000]=30 Zero=1: CC 00 > PC=3000
# Arithmetic beside the flags: forms of the operand, texts that are no number.
A=0E: C6 01 > A=0F Carry=0 Aux=0 PC=2002 ; A=01 M=02: 86 > A=03
A=05 Carry=1: DE 05 > A=FF Carry=1 Sign=1 ; A=10: FE 11 > A=10 Carry=1 Sign=1
A=4F Aux=1: E6 0F > A=0F Aux=0 Parity=1 ; H=30 HL=3000 M=04 [3000]=99: 34 > [3000]=05 M=05
H=30 HL=3000 M=00: 35 > [3000]=FF M=FF ; A=F0 Zero=1: 2F > A=0F Zero=1 ; A=100: 2F > A=FFFFFFFF
Carry=0: 37 > Carry=1 ; Carry=1: 3F > Carry=0 ; A=XX B=01: 80 ! > A=XX B=01
A=01 B=XX: 80 ! > A=01 ; A=XX B=01: 04 > A=XX B=02 ; A=XX: 47 > B=XX BC=XX00
# What is no instruction does nothing.
@FFFF A=5A Carry=1: ED > A=5A Carry=1 PC=0000 SP=FF00
@FFFF A=5A Carry=1: 20 > A=5A Carry=1 PC=0000 SP=FF00
)";

/// What stands in a text before a mark; takes it off with the mark.
std::string TakeUpTo(std::string& text, const std::string& mark) {
  const std::size_t end = std::min(text.find(mark), text.size());
  std::string part = text.substr(0, end);
  text.erase(0, end + mark.size());
  return part;
}

TEST(InstructionsTest, Step) {
  Lab lab;
  std::istringstream lines(kSteps);
  for (std::string line; std::getline(lines, line);) {
    while (!line.empty() && line[0] != '#') {
      std::string after = TakeUpTo(line, " ; ");
      SCOPED_TRACE(after);
      const int address = static_cast<int>(NumberOf(after[0] == '@' ? after.substr(1, 4) : "2000"));
      if (after[0] == '@') TakeUpTo(after, " ");
      lab.Reset();
      lab.Set(TakeUpTo(after, ":"));
      std::string bytes = TakeUpTo(after, ">");
      const bool fails = bytes.find('!') != std::string::npos;
      lab.Load(address, TakeUpTo(bytes, "!"));
      EXPECT_EQ(lab.Step(), !fails);
      lab.Expect(after);
    }
  }
}

TEST(InstructionsTest, AConditionTestsItsFlag) {
  Lab lab;
  for (int code = 0; code < 0x10; ++code) {
    static const char* const kFlags[] = {"Zero", "Carry", "Parity", "Sign"};
    const bool set = code >= 8;
    const bool taken = set == (code % 2 != 0);
    for (const int base : {0xC0, 0xC2, 0xC4}) {
      const std::string op = PaddedHexText(base + 8 * (code % 8), kByteDigits);
      SCOPED_TRACE(op + (set ? " set" : " clear"));
      lab.Set("Zero=0 Carry=0 Parity=0 Sign=0 SP=FEFE [FEFE]=00 [FEFF]=30");
      lab.Set(std::string(kFlags[code % 8 / 2]) + (set ? "=1" : "=0"));
      lab.Load(0x2000, base == 0xC0 ? op : op + " 00 30");
      EXPECT_TRUE(lab.Step());
      lab.Expect(taken ? "PC=3000" : base == 0xC0 ? "PC=2001" : "PC=2003");
    }
  }
}

/// A result with the flags that go with it: carry and auxiliary carry as the model says.
struct Outcome {
  int value;
  bool carry;
  bool aux;
};

/// Adds bit by bit, as on paper; with a borrow instead of a carry for `sign` -1.
Outcome Column(int a, int b, int carry, int sign) {
  Outcome sum{0, false, false};
  for (int bit = 0; bit < 8; ++bit) {
    const int column = (a >> bit & 1) + sign * ((b >> bit & 1) + carry);
    sum.value |= (column & 1) << bit;
    carry = column < 0 || column > 1 ? 1 : 0;
    if (bit == 3) sum.aux = carry != 0;
  }
  sum.carry = carry != 0;
  return sum;
}

Outcome DecimalAdjusted(int a, bool aux) {
  const bool low = a % 16 > 9 || aux;
  const int adjusted = a + (low ? 6 : 0);
  // The low correction may carry out of the byte; the high digit then is 0 and becomes 6.
  const int high = adjusted / 16 % 16 + (adjusted / 16 % 16 > 9 || adjusted > 255 ? 6 : 0);
  return {high % 16 * 16 + adjusted % 16, high > 15, low};
}

/// From the accumulator, register B, Carry and Aux. Carry.
Outcome Expected(int op, int a, int b, int carry, bool aux) {
  Outcome sum = Column(a, b, op == 0x88 || op == 0x98 ? carry : 0, op < 0x90 ? 1 : -1);
  switch (op) {
    case 0x88:  // its auxiliary carry is that of the low digits alone
      sum.aux = Column(a, b, 0, 1).aux;
      return sum;
    case 0x98:  // the borrow is added to the subtrahend, whose low digit may turn over to 0
      sum.aux = a % 16 < (b + carry) % 16;
      return sum;
    case 0xA0:
      return {a & b, false, false};
    case 0xA8:
      return {a ^ b, false, false};
    case 0xB0:
      return {a | b, false, false};
    case 0x3C:
      return {(a + 1) % 256, carry != 0, a % 16 == 15};
    case 0x3D:
      return {(a + 255) % 256, carry != 0, a % 16 == 0};
    case 0x27:
      return DecimalAdjusted(a, aux);
    case 0x07:
      return {a * 2 % 256 + a / 128, a > 127, aux};
    case 0x0F:
      return {a / 2 + a % 2 * 128, a % 2 != 0, aux};
    case 0x17:
      return {a * 2 % 256 + carry, a > 127, aux};
    case 0x1F:
      return {a / 2 + carry * 128, a % 2 != 0, aux};
    default:
      return sum;
  }
}

TEST(InstructionsTest, FlagsFollowTheModel) {
  constexpr int kInputs = 800;
  std::mt19937 random(8085);
  const auto is = [](const char* name, bool set) {
    return std::string(name) + (set ? "=1" : "=0");
  };
  Lab lab;
  for (const int op :
       {0x80, 0x88, 0x90, 0x98, 0xA0, 0xA8, 0xB0, 0xB8, 0x3C, 0x3D, 0x27, 0x07, 0x0F, 0x17, 0x1F}) {
    for (const int address : {1, 0}) lab.Load(address, PaddedHexText(op, kByteDigits));
    const bool compares = op == 0xB8;
    const bool all_flags = op > 0x1F;
    for (int i = 0; i < kInputs; ++i) {
      const auto input = static_cast<int>(random() & 0x7FFFFFFF);
      const int a = input & 0xFF;
      const int b = i % 8 == 0 ? a : input >> 8 & 0xFF;
      const auto bit = [&](int place) { return (input >> place & 1) != 0; };
      const bool old = bit(18);
      lab.Set("A=" + PaddedHexText(a, kByteDigits) + " B=" + PaddedHexText(b, kByteDigits) +
              is(" Carry", bit(16)) + is(" Aux", bit(17)) + is(" Zero", old) + is(" Sign", old) +
              is(" Parity", old));
      lab.machine.PCValue = 0;
      ASSERT_TRUE(lab.Step());
      const auto [value, carry, aux] = Expected(op, a, b, bit(16) ? 1 : 0, bit(17));
      const bool even = std::bitset<8>(static_cast<unsigned>(value)).count() % 2 == 0;
      lab.Expect("A=" + PaddedHexText(compares ? a : value, kByteDigits) + is(" Carry", carry) +
                 is(" Aux", aux) + is(" Zero", all_flags ? value == 0 : old) +
                 is(" Sign", all_flags ? value > 127 : old) +
                 is(" Parity", all_flags ? even : old));
      ASSERT_FALSE(HasFailure()) << op << " a=" << a << " b=" << b << " carry=" << bit(16);
    }
  }
}

}  // namespace
}  // namespace quilla
