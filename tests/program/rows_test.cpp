#include "program/rows.h"

#include <gtest/gtest.h>

#include "platform/failure_of.h"
#include "program/desk.h"

namespace quilla {
namespace {

TEST(RowsTest, AddRowsKeepsTenSpareRowsAndNeverLessThan32) {
  const struct {
    int before;
    int row;
    int after;
  } cases[] = {{32, 5, 32},  {32, 21, 32}, {32, 22, 32}, {32, 23, 33}, {32, 25, 35}, {32, 99, 109},
               {50, 39, 50}, {50, 40, 50}, {50, 41, 51}, {12, 1, 12},  {12, 2, 32},  {1, 0, 32}};
  for (const auto& [before, row, after] : cases) {
    Desk desk;
    desk.rows.SetRows(before);
    desk.rows.AddRows(row);
    EXPECT_EQ(desk.session.Table1.Rows(), after) << before << " rows, row " << row;
    EXPECT_EQ(desk.session.StringTable.Rows(), after) << before << " rows, row " << row;
  }
}

TEST(RowsTest, DeleteRowsCutsFromRow20) {
  for (const auto& [row, after] : {std::pair{19, 32}, {20, 30}, {40, 50}}) {
    Desk desk;
    desk.rows.DeleteRows(row);
    EXPECT_EQ(desk.session.Table1.Rows(), after) << row;
    EXPECT_EQ(desk.session.StringTable.Rows(), after) << row;
  }
}

TEST(RowsTest, InsertLineMovesWhatStandsAtOrBelowIt) {
  for (const auto& [cursor, moved] : {std::pair{2, 2}, {3, 5}, {4, 6}}) {
    Desk desk;
    Session& session = desk.session;
    session.CurrentRow = cursor;
    session.LastLine = 1;
    session.SelectionTop = 1;
    session.Table1.SetTextMatrix(3, kMnemonicColumn, "NOP");
    session.StringTable.SetTextMatrix(3, 0, "a");
    EXPECT_EQ(desk.rows.InsertLine(3, 2), 5);
    EXPECT_EQ(session.CurrentRow, moved);
    EXPECT_EQ(session.LastLine, 3);
    EXPECT_EQ(session.SelectionTop, 1);
    EXPECT_EQ(session.SelectionBottom, 5);
    EXPECT_EQ(session.Table1.TextMatrix(5, kMnemonicColumn), "NOP");
    EXPECT_EQ(session.OperandOf(5), "a");
    EXPECT_EQ(session.Table1.Rows(), 34);
    EXPECT_EQ(session.StringTable.Rows(), 34);
  }
}

class NextLineTest : public testing::Test {
 protected:
  CellColor MnemonicColor(int row) const {
    return desk_.session.Table1.BackColor(row, kMnemonicColumn);
  }

  Desk desk_;
  Session& session_ = desk_.session;
};

TEST_F(NextLineTest, MovesThePaintAndTheSelection) {
  desk_.rows.NextLine(4);
  session_.SelectionTop = 1;
  session_.SelectionBottom = 9;
  desk_.rows.NextLine(2);
  EXPECT_EQ(session_.CurrentRow, 2);
  EXPECT_EQ(MnemonicColor(4), kNormalColor);
  EXPECT_EQ(MnemonicColor(2), kSelectionColor);
  EXPECT_EQ(session_.SelectionTop, 2);
  EXPECT_EQ(session_.SelectionBottom, 2);
}

TEST_F(NextLineTest, OpensALineAboveAnOriginAndStaysOnTheOrigin) {
  session_.Table1.SetTextMatrix(3, kLabelColumn, kOrigin);
  desk_.rows.NextLine(3);
  EXPECT_EQ(session_.CurrentRow, 4);
  EXPECT_TRUE(session_.IsOrigin(4));
  EXPECT_EQ(session_.Table1.TextMatrix(3, kLabelColumn), "");
  EXPECT_EQ(session_.Table1.Rows(), 33);
}

TEST_F(NextLineTest, GrowsOnlyFromTheLastLineOn) {
  session_.LastLine = 26;
  desk_.rows.NextLine(25);
  EXPECT_EQ(session_.Table1.Rows(), 32);
  desk_.rows.NextLine(26);
  EXPECT_EQ(session_.Table1.Rows(), 36);
  // Not grown, the table does not reach that far: the cursor stays where it was.
  session_.LastLine = 200;
  EXPECT_EQ(FailureOf([&] { desk_.rows.NextLine(100); }), ErrorNumber::kOutsideTable);
  EXPECT_EQ(session_.CurrentRow, 26);
}

TEST_F(NextLineTest, CursorThatIsLeftOutsideIsTakenBackIn) {
  session_.CurrentRow = 40;
  desk_.rows.NextLine(1);
  EXPECT_EQ(session_.CurrentRow, 1);
}

TEST_F(NextLineTest, VisitingFilledCellsRaisesTheLastLine) {
  Grid& table = session_.Table1;
  for (const int row : {5, 9, 12}) table.SetTextMatrix(row, kCommentColumn, "x");
  const struct {
    int row;
    int column;
    int last_line;
  } visits[] = {{5, 0, 0}, {5, 4, 5}, {12, 4, 12}, {9, 4, 12}, {20, 0, 12}};
  for (const auto& [row, column, last_line] : visits) {
    table.PressCell(row, column);
    EXPECT_EQ(session_.LastLine, last_line) << row;
  }
}

}  // namespace
}  // namespace quilla
