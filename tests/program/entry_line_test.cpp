#include "program/entry_line.h"

#include <gtest/gtest.h>

#include "platform/failure_of.h"
#include "program/default_comment.h"
#include "program/desk.h"

namespace quilla {
namespace {

TEST(EntryLineTest, LineIsOpenedWhereTheNextOneMustNotBeTaken) {
  const struct {
    int cursor;
    bool insert;
    bool origin_follows;
    int rows;  // afterwards
  } cases[] = {
      {4, false, false, 32},
      {4, true, false, 33},
      {4, false, true, 33},
      {4, true, true, 33},
      // The last row: a line is opened, and ten rows ahead of it.
      {31, false, false, 42},
      {31, true, false, 42},
  };
  for (const auto& [cursor, insert, origin_follows, rows] : cases) {
    Desk desk;
    Session& session = desk.session;
    EntryLine line(session, desk.rows);
    session.CurrentRow = cursor;
    session.CurrentOpcode = 0x0F;
    session.SetWriteMode(insert);
    if (origin_follows) session.Table1.SetTextMatrix(cursor + 1, kLabelColumn, kOrigin);
    line.FinishLine();
    EXPECT_EQ(session.CurrentRow, cursor + 1);
    EXPECT_FALSE(session.IsOrigin(cursor + 1)) << "row " << cursor;
    EXPECT_EQ(session.Table1.Rows(), rows) << "row " << cursor;
    EXPECT_EQ(session.StringTable.Rows(), rows) << "row " << cursor;
    EXPECT_EQ(session.Table1.TextMatrix(cursor, kOpcodeColumn), "0F");
  }
}

TEST(DefaultCommentTest, ComesFromTheRowItself) {
  const struct {
    const char *mnemonic, *opcode, *operand, *comment;
  } cases[] = {
      {"DFB", "3F", "", "Data Byte."},
      {"DFB", "", "", "Data Byte."},
      {"", "", "", "own"},
      {"RST 7", "FF", "", "Restart#7 (Call sub-routine at address 0038H)."},
      {"RST 7", "FF   00", "x", "Restart#7 (Call sub-routine at address 0038H).x"},
      {"LXI  H,", "21   00   80", "table", "Load the equivalent of 'table' into HL-register pair."},
      {"MVI  A,", "3E   XX", "", "Move the equivalent of '' into Accumulator."},
      {"?", "08", "", ""},
      {"?", "78 ", "x", "Move content of B-register into Accumulator.x"},
  };
  for (const auto& [mnemonic, opcode, operand, comment] : cases) {
    Desk desk;
    Session& session = desk.session;
    session.Table1.SetTextMatrix(1, kMnemonicColumn, mnemonic);
    session.Table1.SetTextMatrix(1, kOpcodeColumn, opcode);
    session.Table1.SetTextMatrix(1, kCommentColumn, "own");
    session.StringTable.SetTextMatrix(1, 0, operand);
    ApplyDefaultComment(session, 1);
    EXPECT_EQ(session.Table1.TextMatrix(1, kCommentColumn), comment) << opcode;
  }
  Desk desk;
  desk.session.Table1.SetTextMatrix(1, kOpcodeColumn, "XX");
  EXPECT_EQ(FailureOf([&] { ApplyDefaultComment(desk.session, 1); }), ErrorNumber::kNotANumber);
}

}  // namespace
}  // namespace quilla
