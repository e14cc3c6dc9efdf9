// The panel worked with the keyboard alone, and where the focus goes.
#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <set>

#include "window/panel_fixture.h"
#include "window/qt_text.h"

namespace quilla {
namespace {

class KeyboardTest : public PanelTest {
 protected:
  void StartOrigin() {
    window().findChild<QAction*>("NewOrigin")->trigger();
    outside_.clock.PassAll();
  }
  /// Enters a row with a label and one with a variable.
  void EnterStrings() {
    Click("INST 37");
    Type("loop");
    Press(Qt::Key_Return);
    Click("INST 1");
    Type("aone");
    Press(Qt::Key_Return);
  }
};

TEST_F(KeyboardTest, EntersAnInstruction) {
  Type("MVI");
  EXPECT_EQ(FocusName(), "INST 1");
  Press(Qt::Key_Space);
  EXPECT_EQ(FocusName(), "RegisterBox");
  Type("p");  // not a register of MVI
  EXPECT_EQ(state(), PanelState::kMviRegister);
  Type("a");
  EXPECT_EQ(FocusName(), "XXText");
  Type("one");
  Press(Qt::Key_Return);
  EXPECT_EQ(Cell(1, kMnemonicColumn), "MVI  A,   one");
  EXPECT_EQ(state(), PanelState::kReady);
  EXPECT_EQ(FocusName(), "INST 1") << "the key used last, so that the next one is near";
}

TEST_F(KeyboardTest, KeysInTheMenuBarStayThere) {
  Find("INST 5").setFocus();
  Press(Qt::Key_E, Qt::AltModifier);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  EXPECT_EQ(FocusName(), "INST 5") << "back where it was";
  window().menuBar()->setFocus();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_J, Qt::Key_Right}) {
    QTest::keyClick(window().menuBar(), key);
    if (QWidget* const menu = QApplication::activePopupWidget()) menu->close();
    EXPECT_EQ(Cell(1, kOpcodeColumn), "");
  }
}

TEST_F(KeyboardTest, ACommandLeavesTheFocusInTheBoxThatItOpens) {
  EnterStrings();
  const auto focus_after = [this](const char* from, const char* command) {
    Find(from).setFocus();
    window().findChild<QAction*>(command)->trigger();
    EXPECT_NE(state(), PanelState::kReady) << command;
    const std::string focus = FocusName();
    Press(Qt::Key_Escape);
    return focus;
  };
  EXPECT_NE(focus_after("Table1", "ReplaceLabel"), "Table1");
  EXPECT_NE(focus_after("Table1", "FindVariable"), "Table1");
  EXPECT_EQ(focus_after("INST 1", "DeleteLabels"), "Table1") << "there is no box";
}

TEST_F(KeyboardTest, TabLandsOnTheCursorAndShiftSelectsItsColumn) {
  for (int i = 0; i < 3; ++i) Click("INST 78");
  auto& table = Find<GridView>("Table1");
  const auto land = [&] {
    Find("INST 78").setFocus();
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "Table1") << "one Tab leaves the keys";
    EXPECT_EQ(table.currentIndex(), table.model()->index(4, kMnemonicColumn));
  };
  land();
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Left, Qt::Key_Left}) Press(key);
  QTest::keyPress(&table, Qt::Key_Up, Qt::ShiftModifier);
  QTest::keyRelease(&table, Qt::Key_Shift);
  EXPECT_EQ(session().SelectionTop, 1);
  EXPECT_EQ(session().SelectionBottom, 2);
  land();
  Press(Qt::Key_Backtab);
  EXPECT_EQ(FocusName(), "INST 78");
}

TEST_F(KeyboardTest, EveryBoxIsWorkedWithTheKeysAlone) {
  EnterStrings();
  for (const auto& [command, focus] :
       {std::pair("ReplaceLabel", "ReplaceText"), std::pair("ReplaceVariable", "XXText"),
        std::pair("FindVariable", "XXCombo"), std::pair("PlaceLabelTool", "PlaceText")}) {
    Press(Qt::Key_Escape);
    window().findChild<QAction*>(command)->trigger();
    EXPECT_EQ(FocusName(), focus);
  }
  Find("NewPlaceOption").setFocus();
  Press(Qt::Key_Down);
  EXPECT_EQ(FocusName(), "PlaceCombo") << "the list of the option chosen";
  Find("Table1").setFocus();
  Press(Qt::Key_Up);
  Press(Qt::Key_Space);
  Press(Qt::Key_Return);
  EXPECT_EQ(Cell(2, kLabelColumn), "loop");
}

TEST_F(KeyboardTest, SpaceHoldsAnInterruptKey) {
  QWidget& simulator = OpenSimulator();
  auto* const key = simulator.findChild<QPushButton*>("IButton 2");
  EXPECT_NE(key->focusPolicy() & Qt::TabFocus, 0);
  key->setFocus();
  QTest::keyPress(key, Qt::Key_Space);
  EXPECT_EQ(key->text(), "1");
  QTest::keyRelease(key, Qt::Key_Space);
  EXPECT_EQ(key->text(), "0");
  for (auto* const table : simulator.findChildren<GridView*>()) {
    table->setFocus();
    for (const Qt::Key away : {Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Home}) {
      QTest::keyClick(table, away, Qt::ControlModifier);
      EXPECT_FALSE(table->visualRect(table->currentIndex()).isEmpty()) << "a hidden row";
    }
  }
}

TEST_F(KeyboardTest, ScreenReadersAreTold) {
  for (Control* control : session().ProgrammingPanel.controls()) {
    if (auto* const box = dynamic_cast<Box*>(control)) box->Show();
  }
  QWidget& simulator = OpenSimulator();
  std::set<QString> lines;
  for (const QWidget* top : {static_cast<const QWidget*>(&window()), &std::as_const(simulator)}) {
    for (QWidget* widget : top->findChildren<QWidget*>()) {
      const Control* const control = top->findChild<FormMirror*>()->ControlAt(widget);
      const bool is_its_own = control != nullptr &&
                              widget->objectName() == WidgetName(control->name(), control->index());
      if (!is_its_own || qobject_cast<QLabel*>(widget) != nullptr) continue;
      const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
      EXPECT_FALSE(name.isEmpty()) << control->name();
      if (control->name() == "IButton") lines.insert(name);
    }
  }
  EXPECT_EQ(lines.size(), 5U);
  const auto told = [](GridView& table, int row, int column) {
    auto* const cells = QAccessible::queryAccessibleInterface(&table)->tableInterface();
    return cells->cellAt(row, column)->text(QAccessible::Description);
  };
  EXPECT_EQ(told(Find<GridView>("Table1"), 1, kMnemonicColumn), "cursor");
  EXPECT_EQ(told(*simulator.findChild<GridView*>("InterruptTable"), 2, 0), "masked");
}

TEST_F(KeyboardTest, HeldKeysPressNothing) {
  Type("NOP");
  for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_Space ? " " : "\r", true);
    for (int i = 0; i < 3; ++i) QApplication::sendEvent(window().focusWidget(), &held);
    QKeyEvent let_go(QEvent::KeyRelease, key, Qt::NoModifier);
    QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier);
    let_go.setTimestamp(5000);
    again.setTimestamp(5000);
    QApplication::sendEvent(&window(), &let_go);
    QApplication::sendEvent(window().focusWidget(), &again);
    Find("Table1").setFocus();
  }
  EXPECT_EQ(Cell(1, kOpcodeColumn), "");
  QMessageBox box(QMessageBox::Information, "title", "text", QMessageBox::Ok, &window());
  box.show();
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QApplication::sendEvent(box.button(QMessageBox::Ok), &held);
  EXPECT_TRUE(box.isVisible());
}

TEST_F(KeyboardTest, EveryNameTypedEndsOnItsKey) {
  for (int i = 0; i < kInstructionKeyCount; ++i) {
    const QString key = "INST " + QString::number(i);
    for (int start = 0; start < kInstructionKeyCount; ++start) {
      Find("Table1").setFocus();
      Find("INST " + QString::number(start)).setFocus();
      for (const QChar letter : Find<QPushButton>(key).text()) {
        Press(Qt::Key_Shift);  // as for a capital letter
        Type(letter);
      }
      ASSERT_EQ(FocusName(), key.toStdString()) << "from " << start;
    }
  }
}

TEST_F(KeyboardTest, EnterStepsTheSimulatorBehindAnAddress) {
  Click("INST 78");
  QWidget& simulator = OpenSimulator();
  const auto press = [&](int key, const QString& text = {}) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(simulator.focusWidget(), &event);
  };
  const auto text_of = [&](const char* label) {
    return simulator.findChild<QLabel*>(label)->text();
  };
  for (const char* digit : {"0", "0", "1", "0"}) press(0, digit);
  EXPECT_EQ(text_of("AddrLbl"), "0010");
  press(Qt::Key_Return);
  EXPECT_EQ(simulator.focusWidget()->objectName(), "ExecuteButton");
  press(0, "5");
  for (int i = 0; i < 3; ++i) press(Qt::Key_Return);
  EXPECT_EQ(text_of("AddrLbl"), "0010");
  const auto* const row = simulator.findChild<GridView*>("InstructionTable")->model();
  EXPECT_EQ(row->index(1, 1).data(), "0013");
  auto* const memory = simulator.findChild<GridView*>("MemoryTable");
  QTest::mouseClick(memory->viewport(), Qt::LeftButton);
  for (const char* digit : {"8", "0", "0", "a"}) press(0, digit);
  EXPECT_EQ(memory->currentIndex().row(), 0x800B);
  EXPECT_EQ(text_of("AddrLbl"), "0010");
}

TEST_F(KeyboardTest, AnAcceptedEquivalentIsFollowedByTheNextName) {
  EnterStrings();
  outside_.event_loop.play_command = [&] {
    Form& form = *quilla_.panel()->Dialogs().front();
    QWidget& dialog = *hands_.shown().at(&form).window;
    const auto press = [&](Qt::Key key) { QTest::keyClick(dialog.focusWidget(), key); };
    EXPECT_EQ(dialog.focusWidget()->objectName(), "LabelTable");
    press(Qt::Key_Space);
    outside_.clock.PassAll();
    press(Qt::Key_7);
    press(Qt::Key_Return);
    EXPECT_EQ(dialog.focusWidget()->objectName(), "LabelTable");
    session().outside.event_loop.Unload(form);
    return true;
  };
  window().findChild<QAction*>("EqtOption")->trigger();
}

TEST_F(KeyboardTest, EnterPressesThePushButtonThatShowsTheFocus) {
  EnterStrings();
  window().findChild<QAction*>("FindLabel")->trigger();
  Find("FindDoneButton").setFocus();
  Press(Qt::Key_Return);
  EXPECT_EQ(state(), PanelState::kReady);
  EXPECT_NE(session().Table1.BackColor(1, kMnemonicColumn), kFoundColor);
}

TEST_F(KeyboardTest, EnterPressesTheFocusedKeyWhereThereIsNoDefault) {
  Type("NOP");
  Press(Qt::Key_Return);
  EXPECT_EQ(Cell(1, kOpcodeColumn), "00");
}

TEST_F(KeyboardTest, EnterPressesTheDefaultButtonWhereverTheFocusIs) {
  StartOrigin();
  Type("9fg");
  EXPECT_EQ(Find<QLabel>("NumberLabel").text(), "009F");
  Find("Table1").setFocus();
  Press(Qt::Key_Enter);
  EXPECT_EQ(Cell(1, kAddressColumn), "009F");
  EXPECT_EQ(state(), PanelState::kReady);
}

TEST_F(KeyboardTest, DigitsReachTheNumberFromAnywhere) {
  StartOrigin();
  Find("Table1").setFocus();
  Type("1");
  EXPECT_EQ(Find<QLabel>("NumberLabel").text(), "0001");
}

TEST_F(KeyboardTest, DigitsGoToARestartThoughNothingCanBeAccepted) {
  Click("INST 67");
  EXPECT_EQ(FocusName(), "NumberFocusButton");
  Type("87");
  EXPECT_EQ(Cell(1, kMnemonicColumn), "RST 7");
}

TEST_F(KeyboardTest, EscapeLeadsBackAndGivesTheFocusToTheKeyUsedLast) {
  struct Case {
    const char* key;
    const char* focus;
  };
  for (const Case& each : {Case{"INST 0", "RegisterBox"}, Case{"INST 15", "XXText"},
                           Case{"INST 37", "LabelText"}, Case{"INST 67", "NumberFocusButton"}}) {
    Click(each.key);
    EXPECT_EQ(FocusName(), each.focus);
    Press(Qt::Key_Escape);
    EXPECT_EQ(state(), PanelState::kReady) << each.key;
    EXPECT_EQ(FocusName(), each.key);
  }
}

TEST_F(KeyboardTest, DataBytesNeedTwoDigitsAndEnter) {
  Press(Qt::Key_M, Qt::ControlModifier);
  for (const char* byte : {"3F", "c9"}) {
    EXPECT_EQ(FocusName(), "DataAcceptButton");
    Type(byte);
    Press(Qt::Key_Return);
  }
  EXPECT_EQ(Cell(1, kOpcodeColumn), "3F");
  EXPECT_EQ(Cell(2, kOpcodeColumn), "C9");
}

TEST_F(KeyboardTest, CommentsAreTypedIntoTheTable) {
  Press(Qt::Key_F4);
  QTest::mouseClick(Find<GridView>("Table1").viewport(), Qt::LeftButton, {}, {800, 30});
  EXPECT_EQ(FocusName(), "CommentsTxt");
  Type("5 > 4\"");
  Press(Qt::Key_D, Qt::AltModifier);  // of a button that is disabled
  EXPECT_EQ(Cell(1, kCommentColumn), "5 > 4");
  EXPECT_EQ(Find<QLineEdit>("CommentsTxt").text(), "5 > 4");
  Find<QLineEdit>("CommentsTxt").setCursorPosition(1);
  Type("\"0");
  EXPECT_EQ(Find<QLineEdit>("CommentsTxt").text(), "50 > 4") << "a double quote goes at once";
}

TEST_F(KeyboardTest, ShortcutsAreDeadWhileTheirEntryIsDisabled) {
  Click("INST 0");
  Press(Qt::Key_M, Qt::ControlModifier);
  EXPECT_EQ(state(), PanelState::kMovDestination);
}

TEST_F(KeyboardTest, AnAccessKeyIsTheButtonsWhileTheButtonIsOnView) {
  Click("INST 37");
  Type("loop");
  Press(Qt::Key_Return);
  window().findChild<QAction*>("FindLabel")->trigger();
  Press(Qt::Key_F, Qt::AltModifier);  // that of the file menu too
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(session().Table1.BackColor(1, kMnemonicColumn), kFoundColor);
}

TEST_F(KeyboardTest, ArrowsReachEveryInstructionKey) {
  std::set<std::string> reached = {"INST 0"};
  std::vector<std::string> waiting = {"INST 0"};
  while (!waiting.empty()) {
    const QString from = QString::fromStdString(waiting.back());
    waiting.pop_back();
    for (const Qt::Key arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
      Find(from).setFocus();
      Press(arrow);
      if (reached.insert(FocusName()).second) waiting.push_back(FocusName());
    }
  }
  EXPECT_EQ(reached.size(), 80U);
}

TEST_F(KeyboardTest, TheSameLetterGoesOnToTheNextKeyWithIt) {
  std::set<std::string> found;
  for (int i = 0; i < 5; ++i) {
    Type("J");
    found.insert(FocusName());
  }
  EXPECT_EQ(found.size(), 5U);
  Type("Q");
  EXPECT_TRUE(found.contains(FocusName()));
}

}  // namespace
}  // namespace quilla
