#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "isa/instruction_set.h"

namespace quilla {
namespace {

const std::set<int> kInvalidOpcodes = {0x08, 0x10, 0x18, 0x28, 0x38, 0xCB, 0xD9, 0xDD, 0xED, 0xFD};

// The texts of 16 opcodes from `first` on, a bar after each.
struct SixteenRows {
  int first;
  std::string_view texts;
};

std::string JoinMnemonics(int first) {
  std::string joined;
  for (int opcode = first; opcode < first + 16; ++opcode) {
    joined.append(MnemonicsLUTList(opcode)).append("|");
  }
  return joined;
}

TEST(MnemonicsTest, ReadToTheBlank) {
  const std::vector<SixteenRows> rows = {
      {0x00,
       "NOP|LXI  B,|STAX  B|INX  B|INR  B|DCR  B|MVI  B, |RLC|"
       "-|DAD  B|LDAX  B|DCX  B|INR  C|DCR  C|MVI  C,|RRC|"},
      {0x10,
       "-|LXI  D,|STAX  D|INX  D|INR  D|DCR  D|MVI  D, |RAL|"
       "-|DAD  D|LDAX  D|DCX  D|INR  E|DCR  E|MVI  E,|RAR|"},
      {0x20,
       "RIM|LXI  H,|SHLD |INX  H|INR  H|DCR  H|MVI  H, |DAA|"
       "-|DAD  H|LHLD |DCX  H|INR  L|DCR  L|MVI  L,|CMA|"},
      {0x30,
       "SIM|LXI  SP,|STA |INX  SP|INR  M|DCR  M|MVI  M,|STC|"
       "-|DAD  SP|LDA|DCX  SP|INR  A|DCR  A|MVI  A,|CMC|"},
      {0x70,
       "MOV  M, B|MOV  M, C|MOV  M, D|MOV  M, E|MOV  M, H|MOV  M, L|HLT|MOV  M, A|"
       "MOV  A, B|MOV  A, C|MOV  A, D|MOV  A, E|MOV  A, H|MOV  A, L|MOV  A, M|MOV  A, A|"},
      {0x80,
       "ADD  B |ADD  C|ADD  D|ADD  E|ADD  H|ADD  L|ADD  M|ADD  A|"
       "ADC  B|ADC  C|ADC  D|ADC  E|ADC  H|ADC  L|ADC  M|ADC  A|"},
      {0xC0, "RNZ|POP B|JNZ|JMP|CNZ|PUSH B|ADI|RST 0|RZ|RET|JZ|-|CZ|CALL|ACI|RST 1|"},
      {0xD0, "RNC |POP D|JNC|OUT|CNC|PUSH D|SUI|RST 2|RC|-|JC|IN|CC|-|SBI|RST 3|"},
      {0xE0, "RPO|POP H|JPO|XTHL |CPO|PUSH H|ANI|RST 4|RPE|PCHL|JPE|XCHG|CPE|-|XRI|RST 5|"},
      {0xF0, "RP|POP PSW|JP|DI|CP|PUSH PSW|ORI|RST 6|RM|SPHL|JM|EI|CM|-|CPI|RST 7 |"},
  };
  for (const auto& [first, texts] : rows) {
    EXPECT_EQ(JoinMnemonics(first), texts);
  }
}

TEST(MnemonicsTest, OnlySomeEndWithABlank) {
  std::set<int> with_blank;
  for (int opcode = 0; opcode < kOpcodeCount; ++opcode) {
    if (MnemonicsLUTList(opcode).ends_with(' ')) {
      with_blank.insert(opcode);
    }
  }
  EXPECT_EQ(with_blank,
            std::set<int>({0x06, 0x16, 0x22, 0x26, 0x2A, 0x32, 0x68, 0x80, 0xD0, 0xE3, 0xFF}));
}

TEST(PartialInstListTest, IsTheFirstWordButForRnc) {
  EXPECT_EQ(PartialInstList(0xD0), "RNC ");
  for (int opcode = 0; opcode < kOpcodeCount; ++opcode) {
    if (opcode != 0xD0) {
      std::string first_word;
      std::istringstream(std::string(MnemonicsLUTList(opcode))) >> first_word;
      EXPECT_EQ(PartialInstList(opcode), first_word) << opcode;
    }
  }
}

TEST(InvalidOpcodeTest, HasADashAndNoComment) {
  for (int opcode = 0; opcode < kOpcodeCount; ++opcode) {
    const bool invalid = kInvalidOpcodes.contains(opcode);
    EXPECT_EQ(IsInvalidOpcode(opcode), invalid) << opcode;
    EXPECT_EQ(MnemonicsLUTList(opcode) == "-", invalid) << opcode;
    EXPECT_EQ(PartialInstList(opcode) == "-", invalid) << opcode;
    EXPECT_EQ(BeforeList(opcode).empty(), invalid) << opcode;
  }
}

TEST(InvalidOpcodeTest, OutsideTheTablesAllTextsAreEmpty) {
  for (const int opcode : {-1, kOpcodeCount}) {
    EXPECT_EQ(MnemonicsLUTList(opcode), "");
    EXPECT_EQ(PartialInstList(opcode), "");
    EXPECT_EQ(BeforeList(opcode), "");
    EXPECT_EQ(AfterList(opcode), "");
    EXPECT_EQ(InstructionLength(opcode), 1);
    EXPECT_FALSE(IsInvalidOpcode(opcode));
  }
}

struct CommentRow {
  int opcode;
  std::string_view text;  // "..." in the place of the label or data.
};

TEST(CommentTest, ReadsAsWorded) {
  const std::vector<CommentRow> rows = {
      {0x00, "No Operation."},
      {0x31, "Load the equivalent of '...' into stack pointer."},
      {0x1A, "Load Accumulator with content in address pointed by DE-register pair."},
      {0x0E, "Move the equivalent of '...' into C-register."},
      {0x36, "Move the equivalent of '...' into address pointed by HL-register pair."},
      {0x22, "Store content of HL-register pair in address pointed by '...'."},
      {0x2A, "Load HL-register pair with content from address pointed by '...'."},
      {0x32, "Store content of Accumulator in address pointed by '...'."},
      {0x3A, "Load Accumulator with content from address pointed by '...'."},
      {0x17, "Rotate Accumulator content left through carry flag."},
      {0x20, "Reset interrupt mask."},
      {0x5E, "Move content of address pointed by HL-register pair into E-register."},
      {0x76, "Halt program execution."},
      {0x8E,
       "Add with carry, content of address pointed by HL-register pair to content of Accumulator."},
      {0x96,
       "Subtract content of address pointed by HL-register pair from content of Accumulator."},
      {0x9D, "Subtract with borrow, content of L-register from content of Accumulator."},
      {0x9E,
       "Subtract with borrow, content pointed by HL-register pair from content of Accumulator."},
      {0xA4, "AND content of H-register with content of Accumulator."},
      {0xBE, "Compare content of address pointed by HL-register pair with content of Accumulator."},
      {0xC3, "Jump to address pointed by '...'."},
      {0xF2, "Jump on plus, to address pointd by '...'."},
      {0xCD, "Call sub-routine pointed by '...'."},
      {0xC9, "Return."},
      {0xCE, "Add with carry, the equivalent of '...' to content of Accumulator."},
      {0xDE, "Subtract with borrow, the equivalent of '...' from content of Accumulator."},
      {0xFE, "Compare the equivalent of '...' with content of Accumulator."},
      {0xD3, "Send content of Accumulator to port address pointed by '...'."},
      {0xDB, "Receive content from port address pointed by '...' and store in Accumulator."},
      {0xC7, "Restart#0 (Call sub-routine at address 0000H)."},
      {0xFF, "Restart#7 (Call sub-routine at address 0038H)."},
      {0xC1, "Load BC-register pair with content from top of stack."},
      {0xF1, "Load Accumulator and flag register with content from top of stack."},
      {0xF5, "Store content of Accumulator and flag register in top of stack."},
      {0xEB, "Exchange content of DE & HL-register pairs."},
  };
  for (const auto& [opcode, text] : rows) {
    std::string comment(BeforeList(opcode));
    if (InstructionLength(opcode) > 1) {
      comment += "...";
    }
    EXPECT_EQ(comment.append(AfterList(opcode)), text) << opcode;
  }
}

TEST(CommentTest, NamesWhatTheOperandBitsSay) {
  const std::vector<std::string> conditions = {"no zero",    "zero",        "no carry", "carry",
                                               "odd parity", "even parity", "plus",     "minus"};
  const std::vector<std::string> registers = {"B-register",
                                              "C-register",
                                              "D-register",
                                              "E-register",
                                              "H-register",
                                              "L-register",
                                              "address pointed by HL-register pair",
                                              "Accumulator"};
  const std::vector<std::string> pairs = {"BC-register pair", "DE-register pair",
                                          "HL-register pair", "stack pointer"};
  int code = 0;
  for (const std::string& condition : conditions) {
    EXPECT_EQ(BeforeList(0xC0 + 8 * code), "Return on " + condition + ".");
    EXPECT_EQ(BeforeList(0xC4 + 8 * code), "Call on " + condition + ", sub-routine pointed by '");
    if (condition != "plus") {
      EXPECT_EQ(BeforeList(0xC2 + 8 * code), "Jump on " + condition + ", to address pointed by '");
    }
    ++code;
  }
  code = 0;
  for (const std::string& name : registers) {
    EXPECT_EQ(BeforeList(0x05 + 8 * code), "Decrement content of " + name + ".");
    EXPECT_EQ(BeforeList(0xA8 + code), "XOR content of " + name + " with content of Accumulator.");
    ++code;
  }
  code = 0;
  for (const std::string& pair : pairs) {
    EXPECT_EQ(BeforeList(0x03 + 16 * code), "Increment content of " + pair + ".");
    ++code;
  }
}

TEST(CommentTest, QuotesJustTheOperandsOfTwoAndThreeBytes) {
  for (int opcode = 0; opcode < kOpcodeCount; ++opcode) {
    const bool has_operand = InstructionLength(opcode) > 1;
    EXPECT_EQ(BeforeList(opcode).ends_with('\''), has_operand) << opcode;
    EXPECT_EQ(AfterList(opcode).starts_with('\''), has_operand) << opcode;
    EXPECT_EQ(AfterList(opcode).empty(), !has_operand) << opcode;
  }
}

TEST(InstructionLengthTest, FollowsTheOpcode) {
  const std::set<int> two_bytes = {0x06, 0x0E, 0x16, 0x1E, 0x26, 0x2E, 0x36, 0x3E, 0xC6,
                                   0xCE, 0xD3, 0xD6, 0xDB, 0xDE, 0xE6, 0xEE, 0xF6, 0xFE};
  const std::set<int> three_bytes = {0x01, 0x11, 0x21, 0x22, 0x2A, 0x31, 0x32, 0x3A, 0xC2,
                                     0xC3, 0xC4, 0xCA, 0xCC, 0xCD, 0xD2, 0xD4, 0xDA, 0xDC,
                                     0xE2, 0xE4, 0xEA, 0xEC, 0xF2, 0xF4, 0xFA, 0xFC};
  for (int opcode = 0; opcode < kOpcodeCount; ++opcode) {
    const int length = two_bytes.contains(opcode) ? 2 : three_bytes.contains(opcode) ? 3 : 1;
    EXPECT_EQ(InstructionLength(opcode), length) << opcode;
  }
}

}  // namespace
}  // namespace quilla
