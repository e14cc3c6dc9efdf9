// Where the row operations have their edges.
#include "program/rows.h"

#include <gtest/gtest.h>

#include "panel/running_program.h"

namespace quilla {
namespace {

TEST(RowsTest, TablesKeepTenRowsAhead) {
  RunningProgram program;
  Session& session = program.session();
  Rows table(session);
  for (const auto& [row, rows] : {std::pair{21, 32}, {22, 32}, {25, 35}, {5, 35}}) {
    table.AddRows(row);
    EXPECT_EQ(session.Table1.Rows(), rows) << row;
  }
  table.SetRows(12);
  table.AddRows(2);
  EXPECT_EQ(session.Table1.Rows(), 32);
  table.SetRows(35);
  for (const auto& [row, rows] : {std::pair{19, 35}, {20, 30}, {3, 30}}) {
    table.DeleteRows(row);
    EXPECT_EQ(session.StringTable.Rows(), rows) << row;
  }
}

}  // namespace
}  // namespace quilla
