// What a user sees of the panel: nothing cut off, nothing that jumps, the cursor in view.
#include <QAbstractButton>
#include <QAction>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolTip>
#include <QWheelEvent>
#include <QWindow>
#include <cstdlib>
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
    ExpectAllWhole(window(), where);
    EXPECT_EQ(window().size(), kSmallScreen) << where;
  }
  // Texts stand where there is room for them, none over another.
  static void ExpectAllWhole(const QWidget& area, const std::string& where) {
    QCoreApplication::processEvents();
    std::vector<const QWidget*> seen;
    for (const QWidget* widget : area.findChildren<QWidget*>()) {
      const bool has_text = qobject_cast<const QLabel*>(widget) != nullptr ||
                            qobject_cast<const QAbstractButton*>(widget) != nullptr;
      if (!has_text || !widget->isVisible() || IsOutOfSight(*widget)) continue;
      const std::string name = where + ": " + widget->objectName().toStdString();
      EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << name;
      EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << name;
      const QRect place(widget->mapTo(&area, QPoint()), widget->size());
      EXPECT_TRUE(area.rect().contains(place)) << name;
      for (const QWidget* other : seen) {
        EXPECT_FALSE(other->parent() == widget->parent() &&
                     other->geometry().intersects(widget->geometry()))
            << name << " lies over " << other->objectName().toStdString();
      }
      seen.push_back(widget);
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
  ExpectAllWhole(*OpenSimulator().findChild<QScrollArea*>()->widget(), "simulator");
}

TEST_P(LayoutTest, ColumnsHoldTheirUsualTexts) {
  const auto& table = Find<GridView>("Table1");
  constexpr int kMargins = 10;
  int column = 0;
  for (const char* text : {"Origin", "8000", "LXI  SP,  number", "C3   XX   XX"}) {
    const int width = QFontMetrics(table.font()).horizontalAdvance(text);
    EXPECT_GE(table.columnWidth(column++), width + kMargins) << text;
  }
}

INSTANTIATE_TEST_SUITE_P(FontPercent, LayoutTest, testing::Values(100, 150));

TEST_P(LayoutTest, ZoomMakesTablesAndKeysLargerInAWindowOfTheSameSize) {
  auto& table = Find<GridView>("Table1");
  const auto sizes = [&] { return std::tuple(table.fontMetrics().height(), table.rowHeight(1)); };
  const auto before = sizes();
  const int key = Find("INST 0").fontMetrics().height();
  EXPECT_GE(Find("INST 0").height(), 24);
  for (int i = 0; i < 9; ++i) Play("Ctrl++");
  ExpectAllWhole("zoomed");
  EXPECT_GT(std::get<0>(sizes()), std::get<0>(before) * 2);
  EXPECT_GT(std::get<1>(sizes()), std::get<1>(before) * 2);
  EXPECT_GT(Find("INST 0").fontMetrics().height(), key);
  QWheelEvent wheel({}, {}, {}, {0, -120}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase,
                    false);
  const auto largest = sizes();
  QApplication::sendEvent(table.viewport(), &wheel);
  EXPECT_LT(sizes(), largest);
  Play("Ctrl+0");
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

TEST_F(TableTest, TheRowsShownAreThoseThatCount) {
  for (int i = 0; i < 6; ++i) Click("INST 78");
  using Rows = std::pair<int, int>;
  const struct {
    std::vector<int> rows;  // where the button is pressed, and where the pointer goes
    Rows shown;             // while the button is held
    Rows selected;
    const char* key = nullptr;
  } drags[] = {{{2, 3, 5, 4}, {2, 4}, {2, 4}},
               {{0, 3}, {1, 3}, {1, 3}},
               {{3, 0}, {0, 3}, {0, 3}},
               {{5, 2}, {2, 5}, {2, 5}, "Esc"},
               {{2, 4}, {2, 4}, {2, 4}}};
  QWidget& viewport = *table().viewport();
  for (const auto& drag : drags) {
    SCOPED_TRACE(&drag - drags);
    QTest::mousePress(&viewport, Qt::LeftButton, {}, CellCenter(drag.rows[0], kMnemonicColumn));
    for (const int row : drag.rows)
      Move(viewport, CellCenter(row, kMnemonicColumn), Qt::LeftButton);
    EXPECT_EQ(ShownRows(), drag.shown);
    if (drag.key != nullptr) Play(drag.key);
    QTest::mouseRelease(&viewport, Qt::LeftButton, {},
                        CellCenter(drag.rows.back(), kMnemonicColumn));
    EXPECT_EQ(ShownRows(), drag.selected);
    EXPECT_EQ(Rows(session().SelectionTop, session().SelectionBottom), drag.selected);
  }
  QTest::mouseClick(&viewport, Qt::LeftButton, {}, CellCenter(5, kCommentColumn));
  EXPECT_EQ(ShownRows(), Rows(2, 4)) << "still what Delete takes";
  QTest::mousePress(&viewport, Qt::LeftButton, {}, CellCenter(3, kMnemonicColumn));
  Move(viewport, CellCenter(4, kMnemonicColumn), Qt::LeftButton);
  Move(viewport, CellCenter(6, kMnemonicColumn));
  EXPECT_EQ(ShownRows(), Rows(3, 4)) << "a drag ends where the button is found up";
  EXPECT_EQ(session().SelectionBottom, 4);
  Click("INST 78");
  EXPECT_EQ(ShownRows(), Rows(-1, -1));
}

TEST_F(PanelTest, AnInterruptKeyIsHeldUntilItsButtonIsLetGo) {
  QWidget& simulator = OpenSimulator();
  for (const auto& [line, held] : {std::pair("IButton 2", "1"), std::pair("IButton 1", "1")}) {
    auto* const key = simulator.findChild<QAbstractButton*>(line);
    for (const Qt::MouseButton by : {Qt::LeftButton, Qt::RightButton}) {
      QTest::mousePress(key, by);
      const QString pressed = key->text();
      for (const QPoint place : {QPoint(-9, -9), QPoint(3, 3), QPoint(-9, -9)}) {
        Move(*key, place, by);
        EXPECT_EQ(key->text(), pressed) << line;
      }
      EXPECT_EQ(pressed == held, by == Qt::LeftButton || line == std::string("IButton 2"));
      QTest::mouseRelease(key, by, {}, QPoint(-9, -9));
    }
    EXPECT_EQ(key->text(), "0");
  }
}

// Not every key that repeats is marked as such: it goes up and down in one moment.
TEST_F(PanelTest, AnInterruptKeyIsHeldWhileSpaceRepeats) {
  auto* const key = OpenSimulator().findChild<QAbstractButton*>("IButton 2");
  const auto send = [key](QEvent::Type type, quint64 at) {
    QKeyEvent event(type, Qt::Key_Space, Qt::NoModifier, " ");
    event.setTimestamp(at);
    QApplication::sendEvent(key, &event);
  };
  send(QEvent::KeyPress, 1000);
  send(QEvent::KeyRelease, 1500);
  send(QEvent::KeyPress, 1500);
  QTest::qWait(50);
  EXPECT_EQ(key->text(), "1");
  send(QEvent::KeyRelease, 2000);
  EXPECT_TRUE(QTest::qWaitFor([key] { return key->text() == "0"; }));
}

TEST_F(TableTest, TheCurrentCellFollowsTheCursor) {
  table().setFocus();
  table().setCurrentIndex(table().model()->index(7, kMnemonicColumn));
  Click("INST 78");
  EXPECT_EQ(table().currentIndex().row(), 2);
  table().setCurrentIndex(table().model()->index(0, kMnemonicColumn));
  session().FileChanged = false;
  Play("NewFile");
  EXPECT_EQ(table().currentIndex().row(), 1);
}

TEST_F(TableTest, AKeyTouchesItsRowsAndNoOthers) {
  QAbstractItemModel* const model = table().model();
  const QSignalSpy resets(model, &QAbstractItemModel::modelReset);
  const QSignalSpy layouts(model, &QAbstractItemModel::layoutChanged);
  QSignalSpy changes(model, &QAbstractItemModel::dataChanged);
  session().SetWriteMode(true);
  Play("MOV Return a b");
  QCoreApplication::processEvents();
  EXPECT_LE(changes.size(), 3) << "told once for each key";
  for (const auto& change : changes) EXPECT_LE(change[1].toModelIndex().row(), 2);
  EXPECT_EQ(resets.size() + layouts.size(), 0);
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

TEST_F(TableTest, LinesAreOneDotThickOnAScreenOfAnyScale) {
  constexpr int kRows = 12;
  const QWidget& view = *table().viewport();
  table().verticalHeader()->setDefaultSectionSize(21);  // edges half a dot off at a scale of 1.5
  const QRect last = table().visualRect(table().model()->index(kRows - 1, kCommentColumn));
  for (const double scale : {1.0, 1.25, 1.5}) {
    QImage picture(view.size() * scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    table().viewport()->render(&picture);
    const QRgb line = LineBetweenCells(table().palette()).rgb();
    const int x = static_cast<int>((last.right() - 20) * scale);
    const int y = static_cast<int>(last.center().y() * scale);
    int dots = 0;
    for (int i = 0; i < y; ++i) dots += picture.pixel(x, i) == line ? 1 : 0;
    EXPECT_EQ(dots, kRows - 1) << scale;
  }
}

TEST(Colors, ReadWellInBothPalettes) {
  EXPECT_EQ(FromBlueGreenRed(0x0000FF), QColor(Qt::red));
  const QColor green(0, 0x80, 0);
  EXPECT_EQ(ReadableOn(Qt::white, green), green);
  EXPECT_GT(ReadableOn(QColor(0x20, 0x20, 0x20), green).lightness(), green.lightness());
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
    const int ground = palette.color(QPalette::Base).lightness();
    EXPECT_GT(std::abs(LineBetweenCells(palette).lightness() - ground), 40) << "lines are seen";
  }
}

TEST_F(PanelTest, BoxesSayWhatTheyTakeAndWhyAKeyIsGrey) {
  const struct {
    const char* words;
    const char* hint;
    const char* box = "LabelBoxHint";
  } steps[] = {{"JMP Return", "Esc gives the row back"},
               {"Tab", "Existing is grey"},
               {"LabelText 1", "begins with a small letter"},
               {"Home Del aB", "only small letters and digits"},
               {"Backspace Backspace loop", "1 to 6 small letters"},
               {"Return JMP Return loop", "choose Existing"},
               {"Esc MVI Return A loop", "choose another", "XXBoxHint"}};
  for (const auto& [words, hint, box] : steps) {
    Play(words);
    EXPECT_TRUE(Find<QLabel>(box).text().contains(hint)) << words;
  }
}

TEST_F(TableTest, ThePointerTellsWhatAClickActsOn) {
  Move(*table().viewport(), CellCenter(3, kMnemonicColumn));
  EXPECT_EQ(table().viewport()->cursor().shape(), Qt::PointingHandCursor);
  Move(*table().viewport(), CellCenter(3, kCommentColumn));
  EXPECT_EQ(table().viewport()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(TableTest, ATextIsShownAsItStands) {
  session().ProgrammingPanel.set_caption("a[*]b");
  EXPECT_EQ(window().windowHandle()->title(), "a[*]b");
  const std::string comment = "<b>" + std::string(39997, 'x');
  session().Table1.SetTextMatrix(1, kCommentColumn, comment);
  QHelpEvent help(QEvent::ToolTip, CellCenter(1, kCommentColumn), {});
  QApplication::sendEvent(table().viewport(), &help);
  EXPECT_TRUE(QToolTip::text().contains("&lt;b&gt;"));
  Play("F4");
  QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, CellCenter(1, kCommentColumn));
  Play("End Backspace");
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
  Play("MVI Return A");
  const QPalette before = QApplication::palette();
  session().WriteModeLabel.set_color(0x0000FF);
  const QColor light = Find("WriteModeLabel").palette().color(QPalette::WindowText);
  QApplication::setPalette(QPalette(QColor(0x20, 0x20, 0x20)));
  EXPECT_EQ(Find("XXCombo").palette().color(QPalette::Base),
            QApplication::palette().color(QPalette::Window));
  EXPECT_NE(Find("WriteModeLabel").palette().color(QPalette::WindowText), light);
  QApplication::setPalette(before);
}

TEST_F(PanelTest, HintsFollowThePointer) {
  Move(Find("INST 1"), {3, 3});
  const auto& name = Find<QLabel>("InstructionLabel 0");
  const auto& operands = Find<QLabel>("InstructionLabel 1");
  QCoreApplication::processEvents();
  EXPECT_EQ(operands.x(), name.x() + name.width()) << "the second continues the first";
  window().mirror().Get<Button>("INST", 5).set_enabled(false);
  for (const char* hintless : {"INST 5", "InstructionBox", "TipsLabel"}) {
    Move(Find(hintless), {3, 3});
    EXPECT_EQ(name.text(), "MVI") << hintless << " is not nothing";
  }
  Move(*window().centralWidget(), {3, 3});
  EXPECT_EQ(name.text(), "");
}

}  // namespace
}  // namespace quilla
