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

// What is looked at after a step, in one text so that a difference is readable.
std::string Describe(int value, bool carry, bool aux_carry) {
  int ones = 0;
  for (int bit = 0; bit < 8; ++bit) ones += value >> bit & 1;
  const auto digit = [](bool set) { return std::string(set ? "1" : "0"); };
  return PaddedHexText(value, 2) + " Z" + digit(value == 0) + " S" + digit(value >= 128) + " P" +
         digit(ones % 2 == 0) + " C" + digit(carry) + " A" + digit(aux_carry);
}

std::string Seen(const Lab& lab, const std::string& result) {
  return lab.Text(result) + " Z" + lab.Text("Zero") + " S" + lab.Text("Sign") + " P" +
         lab.Text("Parity") + " C" + lab.Text("Carry") + " A" + lab.Text("Aux");
}

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
};

TEST(FlagsTest, TwoOperands) {
  const std::vector<Operation> operations = {
      {"80", [](int a, int b, int) { return AddBits(a, b, 0); }},
      {"88",
       [](int a, int b, int carry) {
         Outcome sum = AddBits(a, b, carry);
         sum.aux_carry = AddBits(a, b, 0).aux_carry;  // the low digits alone
         return sum;
       }},
      {"90", [](int a, int b, int) { return SubtractBits(a, b, 0); }},
      {"98",
       [](int a, int b, int carry) {
         // The borrow is added to the subtrahend first, whose low digit may turn over to 0.
         Outcome difference = SubtractBits(a, b, carry);
         difference.aux_carry = a % 16 < (b + carry) % 16;
         return difference;
       }},
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
  Lab lab;
  for (const auto& [op, expected] : operations) {
    const bool compares = std::string(op) == "B8";
    for (int input = 0; input < 0x20000; ++input) {
      const int a = input & 0xFF;
      const int b = input >> 8 & 0xFF;
      const int carry = input >> 16;
      lab.tables.SetReg(kRowA, PaddedHexText(a, 2));
      lab.tables.SetReg(kRowB, PaddedHexText(b, 2));
      lab.tables.SetReg(kRowCarry, std::to_string(carry));
      lab.Load(0, op);
      ASSERT_TRUE(lab.Step());
      const auto [value, carry_out, aux_carry] = expected(a, b, carry);
      if (compares) {
        ASSERT_EQ(lab.Text("A"), PaddedHexText(a, 2));
        lab.tables.SetReg(kRowA, PaddedHexText(value, 2));
      }
      ASSERT_EQ(Seen(lab, "A"), Describe(value, carry_out, aux_carry))
          << op << " a=" << a << " b=" << b << " carry=" << carry;
    }
  }
}

TEST(FlagsTest, CountingLeavesCarry) {
  Lab lab;
  for (int input = 0; input < 0x200; ++input) {
    const int a = input & 0xFF;
    const bool carry = input >= 0x100;
    for (const bool up : {true, false}) {
      lab.tables.SetReg(kRowB, PaddedHexText(a, 2));
      lab.tables.SetReg(kRowCarry, carry ? "1" : "0");
      lab.Load(0, up ? "04" : "05");
      ASSERT_TRUE(lab.Step());
      const Outcome counted = up ? AddBits(a, 1, 0) : SubtractBits(a, 1, 0);
      ASSERT_EQ(Seen(lab, "B"), Describe(counted.value, carry, counted.aux_carry)) << a << up;
    }
  }
}

TEST(FlagsTest, DecimalAdjust) {
  Lab lab;
  for (int input = 0; input < 0x400; ++input) {
    const int a = input & 0xFF;
    const bool aux = (input & 0x100) != 0;
    const bool low_corrected = a % 16 > 9 || aux;
    const int low_done = a + (low_corrected ? 6 : 0);
    // The low correction may carry out of the byte; the high digit then is 0 and becomes 6.
    const int high = low_done / 16 % 16;
    const bool high_corrected = high > 9 || low_done > 255;
    const int high_done = high + (high_corrected ? 6 : 0);
    lab.tables.SetReg(kRowA, PaddedHexText(a, 2));
    lab.tables.SetReg(kRowAuxCarry, aux ? "1" : "0");
    lab.tables.SetReg(kRowCarry, (input & 0x200) != 0 ? "1" : "0");
    lab.Load(0, "27");
    ASSERT_TRUE(lab.Step());
    ASSERT_EQ(Seen(lab, "A"),
              Describe(high_done % 16 * 16 + low_done % 16, high_done > 15, low_corrected))
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
  Lab lab;
  for (const auto& [op, turned] : rotates) {
    for (int ring = 0; ring < 0x200; ++ring) {
      lab.Set("Zero=1 Sign=1 Parity=0 Aux=1");
      lab.tables.SetReg(kRowA, PaddedHexText(ring % 256, 2));
      lab.tables.SetReg(kRowCarry, std::to_string(ring / 256));
      lab.Load(0, op);
      ASSERT_TRUE(lab.Step());
      const int after = turned(ring);
      ASSERT_EQ(Seen(lab, "A"),
                PaddedHexText(after % 256, 2) + " Z1 S1 P0 C" + std::to_string(after / 256) + " A1")
          << op << " ring=" << ring;
    }
  }
}

}  // namespace
}  // namespace quilla
