// Where the row operations have their edges.
#include "program/rows.h"

#include <gtest/gtest.h>

#include "program/desk.h"

namespace quilla {
namespace {

TEST(RowsTest, TablesKeepTenRowsAhead) {
  Desk desk;
  for (const auto& [row, rows] : {std::pair{21, 32}, {22, 32}, {25, 35}, {5, 35}}) {
    desk.rows.AddRows(row);
    EXPECT_EQ(desk.session.Table1.Rows(), rows) << row;
  }
  desk.rows.SetRows(12);
  desk.rows.AddRows(2);
  EXPECT_EQ(desk.session.Table1.Rows(), 32);
  desk.rows.SetRows(35);
  for (const auto& [row, rows] : {std::pair{19, 35}, {20, 30}, {3, 30}}) {
    desk.rows.DeleteRows(row);
    EXPECT_EQ(desk.session.StringTable.Rows(), rows) << row;
  }
}

}  // namespace
}  // namespace quilla
