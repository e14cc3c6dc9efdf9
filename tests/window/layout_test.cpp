// What a user sees of the panel: nothing cut off, nothing that jumps, the cursor in view.
#include <QAbstractButton>
#include <QAction>
#include <QLabel>

#include "platform/button.h"
#include "window/panel_fixture.h"

namespace quilla {
namespace {

/// The font in percent of its normal size.
class LayoutTest : public PanelTest, public testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    QFont font = font_before_;
    font.setPointSizeF(font.pointSizeF() * GetParam() / 100);
    QApplication::setFont(font);
    PanelTest::SetUp();
  }
  void TearDown() override { QApplication::setFont(font_before_); }

  void ExpectAllWhole(const std::string& where) {
    QCoreApplication::processEvents();
    EXPECT_EQ(window().size(), kSmallScreen) << where;
    for (const QWidget* widget : window().findChildren<QWidget*>()) {
      const bool has_text = qobject_cast<const QLabel*>(widget) != nullptr ||
                            qobject_cast<const QAbstractButton*>(widget) != nullptr;
      if (!has_text || !widget->isVisible() || IsOutOfSight(*widget)) continue;
      const std::string name = where + ": " + widget->objectName().toStdString();
      EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << name;
      EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << name;
      const QRect place(widget->mapTo(&window(), QPoint()), widget->size());
      EXPECT_TRUE(window().rect().contains(place)) << name;
    }
  }

 private:
  static bool IsOutOfSight(const QWidget& widget) {
    return widget.objectName() == "NumberFocusButton" || widget.objectName() == "TableCancelButton";
  }

  const QFont font_before_ = QApplication::font();
};

TEST_P(LayoutTest, EveryBoxIsWholeAndNothingJumps) {
  const QRect table = Find("Table1").geometry();
  ExpectAllWhole("start");
  for (Control* control : session().ProgrammingPanel.controls()) {
    auto* const box = dynamic_cast<Box*>(control);
    if (box == nullptr || box->visible()) continue;
    box->Show();
    ExpectAllWhole(box->name());
    EXPECT_EQ(Find("Table1").geometry(), table) << box->name();
    box->Hide();
  }
}

TEST_P(LayoutTest, ColumnsHoldTheirUsualTexts) {
  const std::vector<int> widths = Find<GridView>("Table1").ColumnWidths();
  const QFontMetrics metrics(window().font());
  constexpr int kMargins = 10;
  EXPECT_GE(widths[0], metrics.horizontalAdvance("Origin") + kMargins);
  EXPECT_GE(widths[1], metrics.horizontalAdvance("8000") + kMargins);
  EXPECT_GE(widths[2], metrics.horizontalAdvance("LXI  SP,  number") + kMargins);
  EXPECT_GE(widths[3], metrics.horizontalAdvance("C3   XX   XX") + kMargins);
}

INSTANTIATE_TEST_SUITE_P(FontPercent, LayoutTest, testing::Values(100, 150));

class TableTest : public PanelTest {
 protected:
  GridView& table() { return Find<GridView>("Table1"); }
  QPoint CellCenter(int row, int column) {
    return table().visualRect(table().model()->index(row, column)).center();
  }
  std::pair<int, int> ShownRows() {
    const QModelIndexList rows = table().selectionModel()->selectedRows();
    if (rows.isEmpty()) return {-1, -1};
    return {rows.constFirst().row(), rows.constLast().row()};
  }
};

TEST_F(TableTest, ADragShowsItsRowsWhileItRunsAndUntilTheCursorMoves) {
  QWidget* const viewport = table().viewport();
  QTest::mousePress(viewport, Qt::LeftButton, {}, CellCenter(2, kMnemonicColumn));
  for (const int row : {3, 5, 4}) {
    QMouseEvent move(QEvent::MouseMove, CellCenter(row, kMnemonicColumn), {}, Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &move);
    EXPECT_EQ(ShownRows(), std::pair(2, row));
  }
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, CellCenter(4, kMnemonicColumn));
  EXPECT_EQ(ShownRows(), std::pair(2, 4));
  EXPECT_EQ(session().SelectionTop, 2);
  EXPECT_EQ(session().SelectionBottom, 4);
  Click("INST 78");
  EXPECT_EQ(ShownRows(), std::pair(-1, -1));
}

TEST_F(TableTest, TheCursorStaysInView) {
  for (int i = 0; i < 60; ++i) Click("INST 78");
  QCoreApplication::processEvents();
  const QRect cursor = table().visualRect(table().model()->index(61, kMnemonicColumn));
  EXPECT_TRUE(table().viewport()->rect().contains(cursor));
}

TEST_F(TableTest, ThePointerTellsWhatAClickActsOn) {
  const auto shape_over = [this](int column) {
    const QPoint place = CellCenter(3, column);
    QMouseEvent move(QEvent::MouseMove, place, {}, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(table().viewport(), &move);
    return table().viewport()->cursor().shape();
  };
  EXPECT_EQ(shape_over(kMnemonicColumn), Qt::PointingHandCursor);
  EXPECT_EQ(shape_over(kCommentColumn), Qt::ArrowCursor);
}

TEST_F(TableTest, HintsFollowThePointer) {
  const auto hover = [this](QWidget& widget) {
    QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), {}, Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&widget, &move);
  };
  hover(Find("INST 1"));
  const auto& name = Find<QLabel>("InstructionLabel 0");
  const auto& operands = Find<QLabel>("InstructionLabel 1");
  EXPECT_EQ(name.text(), "MVI");
  EXPECT_EQ(operands.text(), "  Register/Memory, 8-Bit Data");
  QCoreApplication::processEvents();
  EXPECT_EQ(operands.x(), name.x() + name.width()) << "the second continues the first";
  hover(*window().centralWidget());
  EXPECT_EQ(name.text(), "");
}

}  // namespace
}  // namespace quilla
