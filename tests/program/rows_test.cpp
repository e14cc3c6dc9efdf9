// Where the row operations and the state machine have their edges.
#include "program/rows.h"

#include <gtest/gtest.h>

#include "program/desk.h"
#include "program/state_machine.h"

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

TEST(StateMachineTest, AStateOutsideTheTableChangesTheTipAlone) {
  Desk desk;
  StateMachine states(desk.session);
  for (const int state : {36, 99}) {
    desk.session.SetTip("old");
    states.ControlTransfer(static_cast<PanelState>(state));
    EXPECT_EQ(desk.session.TipsLabel.caption(), "");
  }
}

}  // namespace
}  // namespace quilla
