// Results and flags of arithmetic and logic over all operand values, against formulas of their own:
// sums by columns of bits, as on paper.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "simulator/lab.h"

namespace quilla {
namespace {

struct Outcome {
  int value;
  bool carry;
  bool aux_carry;
};

// What is looked at after a step: the result, and above it the flags, a bit each.
int Packed(int value, bool zero, bool sign, bool parity, bool carry, bool aux_carry) {
  const auto bit = [](bool set, int place) { return set ? 1 << place : 0; };
  return value | bit(zero, 8) | bit(sign, 9) | bit(parity, 10) | bit(carry, 11) |
         bit(aux_carry, 12);
}

int Expected(int value, bool carry, bool aux_carry) {
  int ones = 0;
  for (int bit = 0; bit < 8; ++bit) ones += value >> bit & 1;
  return Packed(value, value == 0, value >= 128, ones % 2 == 0, carry, aux_carry);
}

// The machine with one instruction to run over and over. The same opcode stands at its two first
// addresses, so that a step shows it again.
class Repeated {
 public:
  explicit Repeated(const std::string& op) {
    lab_.Set("[0000]=" + op + " [0001]=" + op);
    lab_.machine.StartAt("0000");
  }

  void Set(int row, int value, int digits) {
    lab_.tables.SetReg(row, PaddedHexText(value, digits));
  }
  void SetByte(int row, int value) { Set(row, value, 2); }
  void SetFlag(int row, bool set) { Set(row, set ? 1 : 0, 1); }

  /// The outcome of one step, packed, with the result from that row.
  int Run(int result_row) {
    lab_.machine.PCValue = 0;
    EXPECT_TRUE(lab_.Step());
    const auto flag = [this](int row) { return lab_.tables.RegText(row) == "1"; };
    return Packed(static_cast<int>(lab_.tables.RegValue(result_row)), flag(kRowZero),
                  flag(kRowSign), flag(kRowParity), flag(kRowCarry), flag(kRowAuxCarry));
  }

 private:
  Lab lab_;
};

// Adds two bytes bit by bit; gives the carry out of bit 7 and of bit 3.
Outcome AddBits(int a, int b, int carry) {
  Outcome sum{0, false, false};
  for (int bit = 0; bit < 8; ++bit) {
    const int column = (a >> bit & 1) + (b >> bit & 1) + carry;
    sum.value |= (column & 1) << bit;
    carry = column >> 1;
    if (bit == 3) sum.aux_carry = carry != 0;
  }
  sum.carry = carry != 0;
  return sum;
}

// Subtracts bit by bit; gives the borrow out of bit 7 and of bit 3.
Outcome SubtractBits(int a, int b, int borrow) {
  Outcome difference{0, false, false};
  for (int bit = 0; bit < 8; ++bit) {
    const int column = (a >> bit & 1) - (b >> bit & 1) - borrow;
    difference.value |= (column & 1) << bit;
    borrow = column < 0 ? 1 : 0;
    if (bit == 3) difference.aux_carry = borrow != 0;
  }
  difference.carry = borrow != 0;
  return difference;
}

struct Operation {
  const char* op;  // with register B as its operand
  std::function<Outcome(int a, int b, int carry)> expected;
  bool takes_carry = false;
};

TEST(FlagsTest, TwoOperands) {
  const std::vector<Operation> operations = {
      {"80", [](int a, int b, int) { return AddBits(a, b, 0); }},
      {"88",
       [](int a, int b, int carry) {
         Outcome sum = AddBits(a, b, carry);
         sum.aux_carry = AddBits(a, b, 0).aux_carry;  // the low digits alone
         return sum;
       },
       true},
      {"90", [](int a, int b, int) { return SubtractBits(a, b, 0); }},
      {"98",
       [](int a, int b, int carry) {
         // The borrow is added to the subtrahend first, whose low digit may turn over to 0.
         Outcome difference = SubtractBits(a, b, carry);
         difference.aux_carry = a % 16 < (b + carry) % 16;
         return difference;
       },
       true},
      {"B8", [](int a, int b, int) { return SubtractBits(a, b, 0); }},
      {"A0",
       [](int a, int b, int) {
         return Outcome{a & b, false, false};
       }},
      {"A8",
       [](int a, int b, int) {
         return Outcome{(a | b) - (a & b), false, false};
       }},
      {"B0",
       [](int a, int b, int) {
         return Outcome{a + b - (a & b), false, false};
       }},
  };
  for (const auto& [op, expected, takes_carry] : operations) {
    Repeated machine(op);
    const bool compares = std::string(op) == "B8";
    for (int input = 0; input < (takes_carry ? 0x20000 : 0x10000); ++input) {
      const int a = input & 0xFF;
      const int b = input >> 8 & 0xFF;
      const int carry = takes_carry ? input >> 16 : (a + b) % 2;
      machine.SetByte(kRowA, a);
      machine.SetByte(kRowB, b);
      machine.SetFlag(kRowCarry, carry != 0);
      const auto [value, carry_out, aux_carry] = expected(a, b, carry);
      // A comparison has the flags of the difference and leaves A.
      const int wanted = Expected(value, carry_out, aux_carry) - (compares ? value - a : 0);
      ASSERT_EQ(machine.Run(kRowA), wanted) << op << " a=" << a << " b=" << b << " carry=" << carry;
    }
  }
}

TEST(FlagsTest, CountingLeavesCarry) {
  for (const bool up : {true, false}) {
    Repeated machine(up ? "04" : "05");
    for (int input = 0; input < 0x200; ++input) {
      const int b = input & 0xFF;
      const bool carry = input >= 0x100;
      machine.SetByte(kRowB, b);
      machine.SetFlag(kRowCarry, carry);
      const Outcome counted = up ? AddBits(b, 1, 0) : SubtractBits(b, 1, 0);
      ASSERT_EQ(machine.Run(kRowB), Expected(counted.value, carry, counted.aux_carry)) << b << up;
    }
  }
}

TEST(FlagsTest, DecimalAdjust) {
  Repeated machine("27");
  for (int input = 0; input < 0x400; ++input) {
    const int a = input & 0xFF;
    const bool aux = (input & 0x100) != 0;
    const bool low_corrected = a % 16 > 9 || aux;
    const int low_done = a + (low_corrected ? 6 : 0);
    // The low correction may carry out of the byte; the high digit then is 0 and becomes 6.
    const int high = low_done / 16 % 16;
    const bool high_corrected = high > 9 || low_done > 255;
    const int high_done = high + (high_corrected ? 6 : 0);
    machine.SetByte(kRowA, a);
    machine.SetFlag(kRowAuxCarry, aux);
    machine.SetFlag(kRowCarry, (input & 0x200) != 0);
    ASSERT_EQ(machine.Run(kRowA),
              Expected(high_done % 16 * 16 + low_done % 16, high_done > 15, low_corrected))
        << input;
  }
}

TEST(FlagsTest, RotatesWriteCarryAlone) {
  struct Rotate {
    const char* op;
    std::function<int(int ring)> turned;  // nine bits, Carry at the top
  };
  // RLC and RRC turn eight bits and copy the one that goes round; RAL and RAR turn all nine.
  const std::vector<Rotate> rotates = {
      {"07",
       [](int ring) {
         const int a = ring % 256;
         return a * 2 % 256 + a / 128 + a / 128 * 256;
       }},
      {"0F", [](int ring) { return (ring % 256) / 2 + ring % 2 * 128 + ring % 2 * 256; }},
      {"17", [](int ring) { return ring * 2 % 512 + ring / 256; }},
      {"1F", [](int ring) { return ring / 2 + ring % 2 * 256; }},
  };
  for (const auto& [op, turned] : rotates) {
    Repeated machine(op);
    for (int ring = 0; ring < 0x200; ++ring) {
      for (const int row : {kRowZero, kRowSign, kRowAuxCarry}) machine.SetFlag(row, true);
      machine.SetFlag(kRowParity, false);
      machine.SetByte(kRowA, ring % 256);
      machine.SetFlag(kRowCarry, ring >= 256);
      const int after = turned(ring);
      ASSERT_EQ(machine.Run(kRowA), Packed(after % 256, true, true, false, after >= 256, true))
          << op << " ring=" << ring;
    }
  }
}

}  // namespace
}  // namespace quilla
