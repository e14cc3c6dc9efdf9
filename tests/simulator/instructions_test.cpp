// Instructions one by one, a row a case.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "program/vocabulary.h"
#include "simulator/lab.h"

namespace quilla {
namespace {

// One step: the state before, the instruction, and what stands in the tables after it.
struct Row {
  const char* what;
  const char* before;
  const char* bytes;
  const char* after;
  bool carried_out = true;
  int address = 0x2000;
};

void Check(const std::vector<Row>& rows) {
  Lab lab;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    lab.Restart();
    lab.Set(row.before);
    lab.Load(row.address, row.bytes);
    EXPECT_EQ(lab.Step(), row.carried_out);
    lab.Expect(row.after);
  }
}

constexpr bool kFails = false;

TEST(DataMovementTest, CopiesTexts) {
  Check({
      {"a register", "A=12", "47", "B=12 BC=1200 PC=2001"},
      {"into memory", "A=12 H=30 HL=3000", "77", "[3000]=12 M=12"},
      {"M is the copy of the last refresh", "HL=3000 M=77 [3000]=12 H=30", "7E", "A=77 M=12"},
      {"a byte", "", "3E 7f", "A=7f PC=2002"},
      {"a byte into memory", "H=30 HL=3000", "36 05", "[3000]=05 M=05"},
      {"a word", "", "01 34 12", "B=12 C=34 BC=1234 PC=2003"},
      {"a word into SP", "", "31 34 12", "SP=1234"},
      {"STAX", "A=9A DE=3000", "12", "[3000]=9A"},
      {"LDAX", "BC=3000 [3000]=9A", "0A", "A=9A"},
      {"SHLD", "H=12 L=34", "22 00 30", "[3000]=34 [3001]=12"},
      {"SHLD past the end writes the first byte", "L=34", "22 FF FF", "[FFFF]=34", kFails},
      {"LHLD", "[3000]=34 [3001]=12", "2A 00 30", "H=12 L=34 HL=1234"},
      {"LHLD past the end takes the first byte", "[FFFF]=34", "2A FF FF", "L=34 H=00", kFails},
      {"STA", "A=12", "32 00 30", "[3000]=12"},
      {"LDA", "[3000]=12", "3A 00 30", "A=12"},
      {"SPHL", "HL=50A", "F9", "SP=050A"},
  });
}

TEST(DataMovementTest, PairsAreJoinedBeforeTheirHalvesArePadded) {
  Check({
      {"INR B", "B=04 C=0A", "04", "B=05 C=0A BC=050A"},
      {"DCR C", "B=04 C=0A", "0D", "B=04 C=09 BC=0049"},
      {"XCHG", "H=0A L=0B D=12 E=34", "EB", "D=0A E=0B DE=00AB H=12 L=34 HL=1234"},
      {"M follows a short HL", "H=04 L=0A [50A]=77", "24", "H=05 L=0A HL=050A M=77"},
  });
}

TEST(DataMovementTest, CountsPairs) {
  Check({
      {"INX", "BC=12FF", "03", "B=13 C=00 BC=1300"},
      {"INX at the top", "HL=FFFF", "23", "H=00 L=00 HL=0000"},
      {"INX SP", "SP=FFFF", "33", "SP=0000"},
      {"DCX", "DE=1000", "1B", "D=0F E=FF DE=0FFF"},
      {"DCX at the bottom", "BC=0000", "0B", "B=FF C=FF BC=FFFF"},
      {"DCX SP", "SP=0100", "3B", "SP=00FF"},
      {"flags stay", "BC=FFFF Zero=0 Carry=1 Sign=1", "03", "Zero=0 Carry=1 Sign=1"},
  });
}

TEST(StackTest, KeepsTheHighRegisterAtTheLowerAddress) {
  Check({
      {"PUSH", "B=12 C=34", "C5", "[FEFE]=12 [FEFF]=34 SP=FEFE"},
      {"PUSH pads", "D=05 E=0F", "D5", "[FEFE]=05 [FEFF]=0F"},
      {"PUSH at 0: both in one cell", "H=12 L=34 SP=0000", "E5", "[FFFE]=34 SP=FFFE"},
      {"PUSH at 1: into the heading", "B=12 C=34 SP=0001", "C5", "[heading]=12 [0000]=34 SP=FFFF"},
      {"PUSH at 2", "B=12 C=34 SP=0002", "C5", "[0000]=12 [0001]=34 SP=0000"},
      {"POP", "SP=FEFE [FEFE]=12 [FEFF]=34", "D1", "D=12 E=34 DE=1234 SP=FF00"},
      {"POP takes short texts", "SP=00F0 [00F0]=0A [00F1]=0B", "C1", "B=0A C=0B BC=00AB SP=00F2"},
      {"POP at FFFE meets the heading", "SP=FFFE [FFFE]=12", "C1", "B=00 SP=FFFE", kFails},
      {"POP at FFFF meets the heading", "SP=FFFF", "E1", "H=00 SP=FFFF", kFails},
      {"XTHL", "SP=FEFE [FEFE]=12 [FEFF]=34 H=56 L=78", "E3",
       "H=12 L=34 HL=1234 [FEFE]=56 [FEFF]=78 SP=FEFE"},
  });
}

TEST(StackTest, PushesTheAccumulatorAsADecimalNumber) {
  Check({
      {"two decimal digits", "A=12", "F5", "[FEFE]=0C [FEFF]=02 SP=FEFE"},
      {"a small one", "A=07", "F5", "[FEFE]=07"},
      {"all flags", "A=99 Zero=1 Sign=1 Parity=1 Carry=1 Aux=1", "F5", "[FEFE]=63 [FEFF]=D7"},
      {"a letter", "A=1E", "F5", "[FEFE]=00 [FEFF]=00 SP=FF00", kFails},
      {"a sign", "A=-1", "F5", "[FEFE]=0FFFFFFFF [FEFF]=02"},
      {"POP PSW", "SP=FEFE [FEFE]=0C [FEFF]=D7", "F1",
       "A=0C Zero=1 Sign=1 Parity=1 Carry=1 Aux=1 SP=FF00"},
      {"POP PSW clears", "SP=FEFE [FEFF]=28 Zero=1 Sign=1 Parity=1 Carry=1 Aux=1", "F1",
       "A=00 Zero=0 Sign=0 Parity=0 Carry=0 Aux=0"},
  });
}

TEST(TransferTest, LeavesShortTextsAndDerivedRows) {
  Check({
      {"JMP", "B=12 C=34 BC=0000 Carry=1", "C3 00 30", "PC=3000 BC=0000 Carry=1"},
      {"JMP wraps its operand", "[0000]=30", "C3 00", "PC=3000", true, 0xFFFE},
      {"PCHL", "HL=3000", "E9", "PC=3000"},
      {"CALL", "", "CD 00 30", "[FEFF]=20 [FEFE]=03 SP=FEFE PC=3000"},
      {"CALL leaves SP short", "SP=0011", "CD 00 30", "[0010]=20 [000F]=03 SP=F"},
      {"CALL from the end", "", "CD 00 30", "[FEFF]=00 [FEFE]=00 PC=3000", true, 0xFFFD},
      {"CALL past the end", "[0000]=30", "CD 00", "[FEFF]=FF [FEFE]=FF", true, 0xFFFE},
      {"CALL at 1 writes one byte", "SP=0001", "CD 00 30", "[0000]=20 SP=0001 PC=0000", kFails},
      {"CALL at 0 writes none", "SP=0000", "CD 00 30", "[0000]=00 SP=0000 PC=0000", kFails},
      {"RET", "SP=FEFE [FEFE]=34 [FEFF]=12", "C9", "PC=1234 SP=FF00"},
      {"RET leaves SP short", "SP=0002 [0002]=34 [0003]=12", "C9", "PC=1234 SP=4"},
      {"RET at the top", "SP=FFFF [FFFF]=34 [0000]=12", "C9", "PC=1234 SP=1"},
      {"RET to what is no address", "SP=3000 [3000]=XX [3001]=12", "C9", "PC=12XX SP=3000", kFails},
      {"RST", "", "CF", "[FEFF]=20 [FEFE]=03 SP=FEFE PC=0008"},
      {"RST 7", "", "FF", "PC=0038"},
  });
}

TEST(TransferTest, AWordPushedAndReturnedToIsExchanged) {
  Lab lab;
  lab.Set("B=12 C=34");
  lab.Load(0x2000, "C5");
  ASSERT_TRUE(lab.Step());
  lab.Load(0x2001, "C9");
  ASSERT_TRUE(lab.Step());
  lab.Expect("PC=3412 SP=FF00");
}

TEST(TransferTest, AConditionTestsItsFlag) {
  struct Condition {
    const char* flag;
    const char* value;
  };
  const std::vector<Condition> conditions = {{"Zero", "0"},  {"Zero", "1"},   {"Carry", "0"},
                                             {"Carry", "1"}, {"Parity", "0"}, {"Parity", "1"},
                                             {"Sign", "0"},  {"Sign", "1"}};
  Lab lab;
  for (int code = 0; code < 8; ++code) {
    for (const char* value : {"0", "1"}) {
      const auto& [flag, wanted] = conditions[static_cast<std::size_t>(code)];
      const std::string state = "Zero=0 Carry=0 Parity=0 Sign=0 SP=FEFE [FEFE]=00 [FEFF]=30 ";
      const bool taken = std::string(wanted) == value;
      SCOPED_TRACE(std::string(flag) + "=" + value + " code " + std::to_string(code));
      for (const int base : {0xC0, 0xC2, 0xC4}) {
        lab.Set(state + flag + "=" + value);
        const std::string op = PaddedHexText(base + 8 * code, kByteDigits);
        lab.Load(0x2000, base == 0xC0 ? op : op + " 00 30");
        EXPECT_TRUE(lab.Step());
        EXPECT_EQ(lab.Text("PC"), taken ? "3000" : base == 0xC0 ? "2001" : "2003");
      }
    }
  }
}

TEST(TransferTest, AConditionalJumpDoesNotWrapItsOperand) {
  Check({
      {"JZ", "[0000]=30 Zero=1", "CA 00", "PC=0000", kFails, 0xFFFE},
      {"CZ wraps as CALL", "[0000]=30 Zero=1", "CC 00", "PC=3000", true, 0xFFFE},
  });
}

TEST(HaltTest, TellsOnceAndStays) {
  Lab lab;
  lab.Load(0x2000, "76");
  lab.Set("B=5");
  for (int click = 0; click < 3; ++click) EXPECT_TRUE(lab.Step());
  EXPECT_EQ(lab.boxes, std::vector<std::string>{"Program execution halted."});
  EXPECT_EQ(lab.machine.PCValue, 0x2000);
  lab.Expect("B=5");
  lab.machine.StartAt("2000");
  EXPECT_TRUE(lab.machine.Halted);
}

TEST(ArithmeticTest, AsTold) {
  Check({
      {"ADD", "A=FF B=01", "80", "A=00 Zero=1 Sign=0 Parity=1 Carry=1 Aux=1"},
      {"ADC: Aux without the carry", "A=0F B=00 Carry=1", "88", "A=10 Aux=0 Carry=0"},
      {"ADI", "A=0E", "C6 01", "A=0F Carry=0 Aux=0 PC=2002"},
      {"ADD M takes the copy", "A=01 M=02", "86", "A=03"},
      {"SUB", "A=10 B=01", "90", "A=0F Carry=0 Aux=1"},
      {"SBB of FF and a borrow", "A=42 B=FF Carry=1", "98", "A=42 Carry=1"},
      {"SBI", "A=05 Carry=1", "DE 05", "A=FF Carry=1 Sign=1"},
      {"CMP", "A=42 B=42", "B8", "A=42 Zero=1 Carry=0 Aux=0"},
      {"CPI", "A=10", "FE 11", "A=10 Carry=1 Sign=1"},
      {"ORA A", "A=42 Carry=1 Aux=1", "B7", "A=42 Carry=0 Aux=0"},
      {"ANI", "A=4F Aux=1", "E6 0F", "A=0F Aux=0 Parity=1"},
      {"INR", "C=FF Carry=1", "0C", "C=00 Zero=1 Aux=1 Carry=1"},
      {"DCR", "C=00", "0D", "C=FF Sign=1 Aux=1"},
      {"DCR to one digit", "C=10", "0D", "C=0F Aux=1"},
      {"INR M", "H=30 HL=3000 M=04 [3000]=99", "34", "[3000]=05 M=05"},
      {"DCR M", "H=30 HL=3000 M=00", "35", "[3000]=FF M=FF"},
      {"DAD", "H=80 HL=8000 Zero=1", "29", "H=00 L=00 HL=0000 Carry=1 Zero=1"},
      {"DAD SP", "HL=0001 SP=0FFE Carry=1", "39", "H=0F L=FF HL=0FFF Carry=0"},
      {"DAA of 9B", "A=9B", "27", "A=01 Carry=1 Aux=1"},
      {"DAA of FB", "A=FB", "27", "A=61 Carry=0 Aux=1"},
      {"DAA takes Aux", "A=10 Aux=1 Carry=1", "27", "A=16 Carry=0 Aux=1"},
      {"CMA", "A=F0 Zero=1", "2F", "A=0F Zero=1"},
      {"CMA of a wide number", "A=100", "2F", "A=FFFFFFFF"},
      {"STC", "Carry=1", "37", "Carry=1"},
      {"CMC", "Carry=1", "3F", "Carry=0"},
      {"RAL", "A=80 Zero=0", "17", "A=00 Carry=1 Zero=0"},
      {"RAR", "A=01 Carry=1", "1F", "A=80 Carry=1"},
      {"RLC", "A=81", "07", "A=03 Carry=1"},
      {"RRC", "A=01", "0F", "A=80 Carry=1"},
  });
}

TEST(ArithmeticTest, ATextThatIsNoNumberFailsItsUserAlone) {
  Check({
      {"a user of A", "A=XX B=01", "80", "A=XX B=01", kFails},
      {"a user of B", "A=01 B=XX", "80", "A=01", kFails},
      {"no user of A", "A=XX B=01", "04", "A=XX B=02"},
      {"a copy", "A=XX", "47", "B=XX BC=XX00"},
      {"the refresh needs HL", "H=XX B=01", "04", "B=2 HL=XX00", kFails},
  });
}

TEST(NopTest, InvalidOpcodesDoNothing) {
  Lab lab;
  for (const char* op : {"00", "08", "10", "18", "28", "38", "CB", "D9", "DD", "ED", "FD", "20"}) {
    SCOPED_TRACE(op);
    lab.Restart();
    lab.Set("A=5A Carry=1");
    lab.Load(0xFFFF, op);
    EXPECT_TRUE(lab.Step());
    lab.Expect("A=5A Carry=1 PC=0000 SP=FF00");
  }
}

TEST(PortTest, InputAndOutputShareACell) {
  Lab lab;
  lab.Set("A=3C");
  lab.Load(0x2000, "D3 05");
  ASSERT_TRUE(lab.Step());
  EXPECT_EQ(lab.tables.PortTable.TextMatrix(6, kValueColumn), "3C");
  lab.Set("A=00");
  lab.Load(0x2002, "DB 05");
  ASSERT_TRUE(lab.Step());
  lab.Expect("A=3C");
  lab.Load(0x2004, "DB FF");
  ASSERT_TRUE(lab.Step());
  lab.Expect("A=00");
}

TEST(InterruptTest, SimAndEiPaintTheLines) {
  struct Line {
    const char* before;
    const char* op;
    const char* rst75;
    const char* colors;  // rows 1 to 5, g for enabled and r for masked
  };
  const std::vector<Line> lines = {
      {"A=1F", "30", "0", "grrrr"}, {"A=10", "30", "0", "grrrr"}, {"A=08", "30", "1", "ggggr"},
      {"A=09", "30", "1", "gggrr"}, {"A=07", "30", "1", "grrrr"}, {"A=00", "FB", "1", "grrrg"},
      {"A=00", "F3", "1", "grrrr"},
  };
  for (const Line& line : lines) {
    SCOPED_TRACE(std::string(line.before) + " " + line.op);
    Lab lab;
    lab.Set(line.before);
    lab.Load(0x2000, line.op);
    ASSERT_TRUE(lab.Step());
    std::string colors;
    for (int row = kRowTrap; row <= kRowIntr; ++row) {
      const CellColor color = lab.tables.InterruptTable.BackColor(row, kTitleColumn);
      colors += color == kEnabledColor ? 'g' : color == kMaskedColor ? 'r' : '-';
    }
    EXPECT_EQ(colors, line.colors);
    EXPECT_EQ(lab.tables.InterruptTable.TextMatrix(kRowRst75, kValueColumn), line.rst75);
    lab.Expect(line.before);
  }
}

}  // namespace
}  // namespace quilla
