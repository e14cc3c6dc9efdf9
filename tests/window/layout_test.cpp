// What a user sees of the panel: nothing cut off, nothing that jumps, the cursor in view.
#include <QAbstractButton>
#include <QAction>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <QWindow>
#include <tuple>

#include "platform/button.h"
#include "window/colors.h"
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
  const auto& table = Find<GridView>("Table1");
  const QFontMetrics metrics(table.font());
  constexpr int kMargins = 10;
  EXPECT_GE(table.columnWidth(0), metrics.horizontalAdvance("Origin") + kMargins);
  EXPECT_GE(table.columnWidth(1), metrics.horizontalAdvance("8000") + kMargins);
  EXPECT_GE(table.columnWidth(2), metrics.horizontalAdvance("LXI  SP,  number") + kMargins);
  EXPECT_GE(table.columnWidth(3), metrics.horizontalAdvance("C3   XX   XX") + kMargins);
}

INSTANTIATE_TEST_SUITE_P(FontPercent, LayoutTest, testing::Values(100, 150));

TEST_P(LayoutTest, ZoomMakesTablesAndKeysLargerInAWindowOfTheSameSize) {
  auto& table = Find<GridView>("Table1");
  const auto sizes = [&] { return std::tuple(table.fontMetrics().height(), table.rowHeight(1)); };
  const auto before = sizes();
  const int key = Find("INST 0").fontMetrics().height();
  EXPECT_GE(Find("INST 0").height(), 24);
  for (int i = 0; i < 9; ++i) Press(Qt::Key_Plus, Qt::ControlModifier);
  ExpectAllWhole("zoomed");
  EXPECT_GT(std::get<0>(sizes()), std::get<0>(before) * 2);
  EXPECT_GT(std::get<1>(sizes()), std::get<1>(before) * 2);
  EXPECT_GT(Find("INST 0").fontMetrics().height(), key);
  QWheelEvent wheel({}, {}, {}, {0, -120}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase,
                    false);
  const auto largest = sizes();
  QApplication::sendEvent(table.viewport(), &wheel);
  EXPECT_LT(sizes(), largest);
  Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(sizes(), before);
}

// The tests' screen is 800 pixels high and wide: less than what the panel wishes.
TEST_F(PanelTest, TheWindowsFitTheScreenFrameAndAll) {
  const QSize room = window().screen()->availableSize();
  Gate gate;
  MainWindow panel(gate, outside_.event_loop, session().ProgrammingPanel);
  EXPECT_TRUE(panel.isMaximized());
  EXPECT_LT(panel.height(), room.height());
  session().SetTip(std::string(400, 'w'));
  panel.resize(2000, 700);
  QCoreApplication::processEvents();
  EXPECT_LT(panel.minimumSizeHint().width(), kSmallScreen.width());
  EXPECT_EQ(Find<GridView>("Table1").model()->headerData(4, Qt::Horizontal), "Comment");
  QWidget& simulator = OpenSimulator();
  EXPECT_LT(simulator.height(), room.height());
  EXPECT_LE(simulator.minimumSizeHint().width(), 640);
}

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

TEST_F(TableTest, TheRowsShownAreThoseThatCount) {
  for (int i = 0; i < 6; ++i) Click("INST 78");
  QWidget* const viewport = table().viewport();
  const auto drag = [&](int from, int to, bool escape = false) {
    QTest::mousePress(viewport, Qt::LeftButton, {}, CellCenter(from, kMnemonicColumn));
    QMouseEvent move(QEvent::MouseMove, CellCenter(to, kMnemonicColumn), {}, Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &move);
    if (escape) Press(Qt::Key_Escape);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, CellCenter(to, kMnemonicColumn));
    EXPECT_EQ(ShownRows(), std::pair(session().SelectionTop, session().SelectionBottom));
  };
  drag(0, 3);
  EXPECT_EQ(ShownRows(), std::pair(1, 3));
  drag(3, 0);
  EXPECT_EQ(ShownRows(), std::pair(0, 3));
  drag(4, 2, true);
  drag(2, 4);
  QTest::mouseClick(viewport, Qt::LeftButton, {}, CellCenter(5, kCommentColumn));
  EXPECT_EQ(ShownRows(), std::pair(2, 4)) << "still what Delete takes";
}

TEST_F(TableTest, ADragEndsWhereTheButtonIsFoundUp) {
  QTest::mousePress(table().viewport(), Qt::LeftButton, {}, CellCenter(2, kMnemonicColumn));
  for (const Qt::MouseButtons buttons : {Qt::LeftButton, Qt::NoButton}) {
    QMouseEvent move(QEvent::MouseMove, CellCenter(buttons ? 4 : 6, kMnemonicColumn), {},
                     Qt::NoButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(table().viewport(), &move);
  }
  EXPECT_EQ(session().SelectionBottom, 4);
  EXPECT_EQ(ShownRows(), std::pair(2, 4));
}

TEST_F(PanelTest, AnInterruptKeyIsHeldUntilItsButtonIsLetGo) {
  QWidget& simulator = OpenSimulator();
  for (const auto& [line, held] : {std::pair("IButton 2", "1"), std::pair("IButton 1", "1")}) {
    auto* const key = simulator.findChild<QAbstractButton*>(line);
    for (const Qt::MouseButton by : {Qt::LeftButton, Qt::RightButton}) {
      QTest::mousePress(key, by);
      const QString pressed = key->text();
      for (const QPoint place : {QPoint(-9, -9), QPoint(3, 3), QPoint(-9, -9)}) {
        QMouseEvent move(QEvent::MouseMove, place, {}, Qt::NoButton, by, Qt::NoModifier);
        QApplication::sendEvent(key, &move);
        EXPECT_EQ(key->text(), pressed) << line;
      }
      EXPECT_EQ(pressed == held, by == Qt::LeftButton || line == std::string("IButton 2"));
      QTest::mouseRelease(key, by, {}, QPoint(-9, -9));
    }
    EXPECT_EQ(key->text(), "0");
  }
}

TEST_F(TableTest, TheCursorStaysInView) {
  for (int i = 0; i < 60; ++i) Click("INST 78");
  QCoreApplication::processEvents();
  const QRect cursor = table().visualRect(table().model()->index(61, kMnemonicColumn));
  EXPECT_TRUE(table().viewport()->rect().contains(cursor));
}

TEST_F(TableTest, ReadsLikeAListing) {
  for (const int height : {768, 1080}) {
    window().resize(1366, height);
    QCoreApplication::processEvents();
    const int rows = table().model()->rowCount();
    table().verticalScrollBar()->setValue(table().verticalScrollBar()->maximum());
    const int end = table().rowViewportPosition(rows - 1) + table().rowHeight(rows - 1);
    EXPECT_EQ(end, table().viewport()->height()) << "no band below the last row";
  }
  const QFontMetrics letters(table().font());
  EXPECT_EQ(letters.horizontalAdvance("iXX"), letters.horizontalAdvance("MXX"));
  EXPECT_TRUE(table().verticalHeader()->isVisible());
  EXPECT_EQ(table().model()->headerData(5, Qt::Vertical), 5) << "as messages number the lines";
  table().verticalScrollBar()->setValue(0);
  const QImage picture = table().viewport()->grab().toImage();
  const auto ground = [&](int row) {
    return picture.pixelColor(CellCenter(row, kCommentColumn) + QPoint(200, 0));
  };
  EXPECT_NE(ground(1), ground(2)) << "the row of the cursor";
}

TEST(Colors, ReadWellInBothPalettes) {
  const QPalette light(Qt::black, Qt::white, Qt::white, Qt::black, Qt::gray, Qt::black, Qt::white);
  const QPalette dark(Qt::white, Qt::black, Qt::gray, Qt::black, Qt::gray, Qt::white, Qt::black);
  for (const QPalette& palette : {light, dark}) {
    for (const CellColor color : {kOriginColor, kCommentColor, kMaskedColor, kFoundColor}) {
      const QColor ground = GroundOf(color, palette);
      const bool is_tint = color == kOriginColor || color == kCommentColor;
      const QColor text = is_tint ? palette.color(QPalette::Text) : QColor(Qt::white);
      EXPECT_EQ(TextOn(ground), text) << "no bar that glares";
      EXPECT_EQ(ReadableOn(ground, text), text) << ground.name().toStdString();
    }
  }
}

TEST_F(PanelTest, BoxesSayWhatTheyTakeAndWhyAKeyIsGrey) {
  const auto expect = [this](const char* typed, const char* words, const char* box = "Label") {
    Find<QLineEdit>(QString(box) + "Text").clear();
    Type(typed);
    EXPECT_TRUE(Find<QLabel>(QString(box) + "BoxHint").text().contains(words)) << words;
  };
  Click("INST 37");
  expect("", "Esc gives the row back");
  expect("", "Existing is grey");
  expect("1", "begins with a small letter");
  expect("aB", "only small letters and digits");
  expect("loop", "1 to 6 small letters");
  Press(Qt::Key_Return);
  Click("INST 37");
  expect("loop", "choose Existing");
  Press(Qt::Key_Escape);
  Click("INST 1");
  Type("A");
  expect("loop", "choose another", "XX");
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

TEST_F(TableTest, ATextIsShownAsItStands) {
  session().ProgrammingPanel.set_caption("a[*]b");
  EXPECT_EQ(window().windowHandle()->title(), "a[*]b");
  const std::string comment = "<b>" + std::string(39997, 'x');
  session().Table1.SetTextMatrix(1, kCommentColumn, comment);
  QHelpEvent help(QEvent::ToolTip, CellCenter(1, kCommentColumn), {});
  QApplication::sendEvent(table().viewport(), &help);
  EXPECT_TRUE(QToolTip::text().contains("&lt;b&gt;"));
  Press(Qt::Key_F4);
  QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, CellCenter(1, kCommentColumn));
  Press(Qt::Key_End);
  Press(Qt::Key_Backspace);
  EXPECT_EQ(Cell(1, kCommentColumn).size(), comment.size() - 1);
}

TEST_F(PanelTest, ATableOpenedAgainStartsAtItsTop) {
  auto* const memory = OpenSimulator().findChild<GridView*>("MemoryTable");
  memory->scrollToBottom();
  memory->window()->close();
  OpenSimulator();
  EXPECT_EQ(memory->verticalScrollBar()->value(), 0);
}

TEST_F(PanelTest, AnotherPaletteRecoloursEverything) {
  Click("INST 1");
  Press(Qt::Key_A);
  const QPalette before = QApplication::palette();
  session().WriteModeLabel.set_color(0x0000FF);
  const QColor light = Find("WriteModeLabel").palette().color(QPalette::WindowText);
  QApplication::setPalette(QPalette(QColor(0x20, 0x20, 0x20)));
  EXPECT_EQ(Find("XXCombo").palette().color(QPalette::Base),
            QApplication::palette().color(QPalette::Window));
  EXPECT_NE(Find("WriteModeLabel").palette().color(QPalette::WindowText), light);
  QApplication::setPalette(before);
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
  window().mirror().Get<Button>("INST", 5).set_enabled(false);
  for (const char* hintless : {"INST 5", "InstructionBox", "TipsLabel"}) {
    hover(Find(hintless));
    EXPECT_EQ(name.text(), "MVI") << hintless << " is not nothing";
  }
  hover(*window().centralWidget());
  EXPECT_EQ(name.text(), "");
}

}  // namespace
}  // namespace quilla
