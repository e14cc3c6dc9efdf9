// The item model over a grid, held against Qt's own checks and against the grid itself.
#include "window/grid_model.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QSignalSpy>

#include "window/panel_fixture.h"

namespace quilla {
namespace {

class GridModelTest : public testing::Test {
 protected:
  GridModelTest() {
    grid_.SetRows(6);
    for (int row = 0; row < grid_.Rows(); ++row) {
      grid_.SetTextMatrix(row, 0, "row " + std::to_string(row));
    }
    QCoreApplication::processEvents();
  }
  void ExpectSameAsGrid() {
    ASSERT_EQ(model_.rowCount({}), grid_.Rows());
    for (int row = 0; row < grid_.Rows(); ++row) {
      EXPECT_EQ(model_.index(row, 0).data().toString().toStdString(), grid_.TextMatrix(row, 0));
    }
  }

  Grid grid_{nullptr, "Grid", 2};
  GridModel model_{grid_};
  QAbstractItemModelTester tester_{&model_, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(GridModelTest, FollowsTheGrid) {
  grid_.InsertRows(2, 3);
  ExpectSameAsGrid();
  grid_.InsertRows(0, 1);
  grid_.InsertRows(grid_.Rows(), 2);
  ExpectSameAsGrid();
  grid_.RemoveRows(1, 4);
  ExpectSameAsGrid();
  grid_.RemoveRows(0, grid_.Rows() - 1);
  ExpectSameAsGrid();
  grid_.AddItem("new");
  ExpectSameAsGrid();
  grid_.Clear();
  ExpectSameAsGrid();
}

TEST_F(GridModelTest, KeepsItsPlacesWhenRowsComeAndGo) {
  const QPersistentModelIndex place(model_.index(4, 0));
  grid_.InsertRows(1, 2);
  EXPECT_EQ(place.row(), 6);
  grid_.RemoveRows(0, 1);
  EXPECT_EQ(place.row(), 4);
  EXPECT_EQ(place.data().toString(), "row 4");
}

TEST_F(GridModelTest, ReportsTouchedRowsOnceAndNoOthers) {
  QSignalSpy changes(&model_, &GridModel::dataChanged);
  grid_.SetTextMatrix(3, 0, "one");
  grid_.SetTextMatrix(2, 1, "two");
  grid_.PaintBack(3, 1, CellColor(0xE0E0E0));
  QCoreApplication::processEvents();
  ASSERT_EQ(changes.size(), 1);
  EXPECT_EQ(changes[0][0].toModelIndex().row(), 2);
  EXPECT_EQ(changes[0][1].toModelIndex().row(), 3);
}

class TableModelTest : public PanelTest {};

TEST_F(TableModelTest, IsNeverResetByKeys) {
  QAbstractItemModel* const model = Find<GridView>("Table1").model();
  const QAbstractItemModelTester tester(model);
  const QSignalSpy resets(model, &QAbstractItemModel::modelReset);
  const QSignalSpy layouts(model, &QAbstractItemModel::layoutChanged);
  QSignalSpy changes(model, &QAbstractItemModel::dataChanged);
  session().SetWriteMode(true);
  Click("INST 0");
  Type("ab");
  QCoreApplication::processEvents();
  for (const auto& change : changes) {
    EXPECT_LE(change[1].toModelIndex().row(), 2) << "only the row entered and the next";
  }
  EXPECT_TRUE(resets.isEmpty());
  EXPECT_TRUE(layouts.isEmpty());
}

}  // namespace
}  // namespace quilla
