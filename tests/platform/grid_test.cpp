#include "platform/grid.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/failure_of.h"

namespace quilla {
namespace {

constexpr CellColor kRed{0x0000FF};

class GridTest : public testing::Test {
 protected:
  GridTest() {
    grid_.SetRows(4);
    grid_.CurrentCellChange = [this] { visited_.emplace_back(grid_.Row(), grid_.Col()); };
  }

  std::vector<std::pair<int, int>> TakeVisited() { return std::exchange(visited_, {}); }

  Grid grid_{nullptr, "Grid", 3};
  std::vector<std::pair<int, int>> visited_;
};

TEST_F(GridTest, CellsAndRowsOutsideFail) {
  const std::function<void()> outside[] = {
      [&] { grid_.TextMatrix(4, 0); },      [&] { grid_.TextMatrix(-1, 0); },
      [&] { grid_.TextMatrix(0, 3); },      [&] { grid_.SetTextMatrix(0, -1, "x"); },
      [&] { grid_.PaintBack(4, 0, kRed); }, [&] { grid_.SelectRow(4); },
      [&] { grid_.SelectColumn(3); },       [&] { grid_.InsertRows(5, 1); },
      [&] { grid_.InsertRows(0, -1); },     [&] { grid_.RemoveRows(3, 4); },
      [&] { grid_.RemoveRows(2, 1); },      [&] { grid_.SetRows(-1); },
      [&] { grid_.PressCell(4, 0); },       [&] { grid_.HoverCell(0, 3); },
  };
  for (const auto& operation : outside) EXPECT_EQ(FailureOf(operation), ErrorNumber::kOutsideTable);
  EXPECT_EQ(grid_.Rows(), 4);
  EXPECT_TRUE(TakeVisited().empty());
}

TEST_F(GridTest, GrowsToItsLimit) {
  grid_.SetRows(Grid::kMaxRows);
  EXPECT_EQ(FailureOf([&] { grid_.AddItem("x"); }), ErrorNumber::kGridMemory);
  grid_.SetRows(1);
  EXPECT_EQ(FailureOf([&] { grid_.SetRows(2'000'000'000); }), ErrorNumber::kGridMemory);
  EXPECT_EQ(FailureOf([&] { grid_.InsertRows(0, 2'147'483'647); }), ErrorNumber::kGridMemory);
  EXPECT_EQ(grid_.Rows(), 1);
}

TEST_F(GridTest, CurrentCellIsReportedOnceForEachMove) {
  using Visits = std::vector<std::pair<int, int>>;
  const struct {
    std::function<void()> action;
    Visits visits;
  } cases[] = {
      {[&] { grid_.PressCell(2, 1); }, {{2, 1}}},
      {[&] { grid_.PaintBack(3, 2, kRed); }, {{3, 1}, {3, 2}}},
      {[&] { grid_.Paint(3, 0, kRed, kRed); }, {{3, 0}}},
      {[&] { grid_.PaintBack(3, 0, kNormalColor); }, {}},
      {[&] { grid_.SelectCell(1, 0); }, {{1, 0}}},
      {[&] { grid_.SetTextMatrix(3, 2, "x"); }, {}},
      {[&] { grid_.BackColor(3, 2); }, {}},
      {[&] { grid_.InsertRows(0, 1); }, {}},
      {[&] { grid_.Clear(); }, {}},
      {[&] { grid_.ReleaseAt(3); }, {}},
  };
  int number = 0;
  for (const auto& [action, visits] : cases) {
    action();
    EXPECT_EQ(TakeVisited(), visits) << "case " << number++;
  }
}

}  // namespace
}  // namespace quilla
