// The panel worked with the keyboard alone, and where the focus goes.
#include <QAccessible>
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

class KeyboardTest : public PanelTest {};

TEST_F(KeyboardTest, EveryTaskIsDoneWithTheKeysAlone) {
  struct Step {
    const char* words;
    const char* focus;
    const char* row = nullptr;  // that over the cursor, where it differs from the last step's
  };
  const Step steps[] = {
      {"MVI", "INST 1", "Origin|8000||"},
      {"Space p", "RegisterBox"},  // not a register of MVI
      {"a", "XXText"},
      {"one Return", "INST 1", "||MVI  A,   one|3E   XX"},  // the next key is near
      {"NOP Return", "INST 78", "||NOP|00"},
      {"RST Return", "NumberFocusButton"},
      {"87", "INST 67", "||RST 7|FF"},
      {"MOV Return Ctrl+M", "RegisterBox"},  // a shortcut whose entry is disabled
      {"Esc", "INST 0"},
      {"ADI Return", "XXText"},
      {"Esc", "INST 15"},
      {"RST Return Esc", "INST 67"},
      {"J", "INST 37"},
      {"J", "INST 40"},
      {"Return Esc", "INST 40"},
      {"NewOrigin", "NumberAcceptButton"},
      {"Table1 9fg Table1 Enter", "Table1", "Origin|009F||"},
      {"Ctrl+M 3F Return", "DataAcceptButton", "||DFB|3F"},
      {"Ctrl+M JMP Return", "LabelText"},
      {"loop Return", "INST 37", "||JMP  loop|C3   XX   XX"},
      {"Table1 ReplaceLabel", "ReplaceText"},
      {"Esc ReplaceVariable", "XXText"},
      {"Esc FindVariable", "XXCombo"},
      {"Esc INST_1 DeleteLabels", "Table1"},  // there is no box
      {"Esc PlaceLabelTool", "PlaceText"},
      {"NewPlaceOption Down", "PlaceCombo"},  // the list of the option chosen
      {"Table1 Up Space Return Esc", "INST 1", "loop||JMP  loop|C3   XX   XX"},
      {"FindLabel FindDoneButton Return", "INST 1"},
  };
  std::string row;
  for (const Step& step : steps) {
    if (step.row != nullptr) row = step.row;
    Play(step.words);
    outside_.clock.PassAll();
    EXPECT_EQ(FocusName(), step.focus) << step.words;
    EXPECT_EQ(LastRow(), row) << step.words;
  }
  EXPECT_EQ(session().CurrentPanelState, PanelState::kReady);
  EXPECT_EQ(Cell(1, kOpcodeColumn), "3E   XX");
  Play("FindLabel Alt+F");  // an access key of the file menu too
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(session().Table1.BackColor(session().CurrentRow - 1, kMnemonicColumn), kFoundColor);
}

TEST_F(KeyboardTest, KeysInTheMenuBarStayThere) {
  Play("INST_5 Alt+E");
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

TEST_F(KeyboardTest, TabLandsOnTheCursorAndShiftSelectsItsColumn) {
  for (int i = 0; i < 3; ++i) Click("INST 78");
  auto& table = Find<GridView>("Table1");
  const auto land = [&] {
    Play("INST_78 Tab");
    EXPECT_EQ(FocusName(), "Table1") << "one Tab leaves the keys";
    EXPECT_EQ(table.currentIndex(), table.model()->index(4, kMnemonicColumn));
  };
  land();
  Play("Up Left Left");
  for (const int top : {2, 1}) {
    Play("Shift+Up");
    EXPECT_EQ(session().SelectionTop, top);
    EXPECT_EQ(session().SelectionBottom, 3) << "Shift pressed again goes on";
  }
  land();
  Play("Shift+Tab");
  EXPECT_EQ(FocusName(), "INST 78");
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
    for (const char* away : {"Ctrl+Up", "Ctrl+PgUp", "Ctrl+Home"}) {
      Play(simulator, away);
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
  Play("NOP");
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
      Play("Table1 INST_" + QString::number(start));
      for (const QChar letter : Find<QPushButton>(key).text()) {
        QTest::keyClick(window().focusWidget(), Qt::Key_Shift);  // as for a capital letter
        QTest::keyClick(window().focusWidget(), letter.toLatin1());
      }
      ASSERT_EQ(FocusName(), key.toStdString()) << "from " << start;
    }
  }
}

TEST_F(KeyboardTest, EnterStepsTheSimulatorBehindAnAddress) {
  Click("INST 78");
  QWidget& simulator = OpenSimulator();
  const auto text_of = [&](const char* label) {
    return simulator.findChild<QLabel*>(label)->text();
  };
  Play(simulator, "0010");
  EXPECT_EQ(text_of("AddrLbl"), "0010");
  Play(simulator, "Return");
  EXPECT_EQ(simulator.focusWidget()->objectName(), "ExecuteButton");
  Play(simulator, "5 Return Return Return");
  const auto* const row = simulator.findChild<GridView*>("InstructionTable")->model();
  EXPECT_EQ(row->index(1, 1).data(), "0013");
  auto* const memory = simulator.findChild<GridView*>("MemoryTable");
  QTest::mouseClick(memory->viewport(), Qt::LeftButton);
  Play(simulator, "800a");
  EXPECT_EQ(memory->currentIndex().row(), 0x800B);
  EXPECT_EQ(text_of("AddrLbl"), "0010");
}

TEST_F(KeyboardTest, AnAcceptedEquivalentIsFollowedByTheNextName) {
  Play("JMP Return loop Return");
  outside_.event_loop.play_command = [&] {
    Form& form = *quilla_.panel()->Dialogs().front();
    QWidget& dialog = *hands_.shown().at(&form).window;
    EXPECT_EQ(dialog.focusWidget()->objectName(), "LabelTable");
    Play(dialog, "Space");
    outside_.clock.PassAll();
    Play(dialog, "7 Return");
    EXPECT_EQ(dialog.focusWidget()->objectName(), "LabelTable");
    session().outside.event_loop.Unload(form);
    return true;
  };
  Play("EqtOption");
}

TEST_F(KeyboardTest, RowsOfBytesAreMarkedWithTheKeys) {
  outside_.file_dialogs.Queue(QUILLA_SOURCE_DIR "/tests/scenarios/files/top.hex");
  std::string marks;
  outside_.event_loop.play_command = [&] {
    Form& form = *quilla_.panel()->Dialogs().back();
    const auto& model = dynamic_cast<Grid&>(*form.Find("DataTable"));
    QWidget& dialog = *hands_.shown().at(&form).window;
    Play(dialog, "DataTable Alt+M");
    for (const Qt::Key arrow : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) {
      QTest::keyPress(dialog.focusWidget(), arrow, Qt::ShiftModifier);
    }
    EXPECT_EQ(model.TextMatrix(1, 2), "Unwanted") << "nothing is marked until Shift is let go";
    QTest::keyRelease(dialog.focusWidget(), Qt::Key_Shift);
    Play(dialog, "Alt+D Ctrl+End Space");
    QTest::keyPress(dialog.focusWidget(), Qt::Key_Up, Qt::ShiftModifier);
    Play(dialog, "Tab");  // given up before Shift is let go
    QTest::keyRelease(dialog.focusWidget(), Qt::Key_Shift);
    Play(dialog, "Tab");
    EXPECT_EQ(dialog.focusWidget()->objectName(), "DoneButton");
    for (int row = 1; row < model.Rows(); ++row) marks += model.TextMatrix(row, 2)[0];
    dynamic_cast<Button&>(*form.Find("CancelButton")).Click();
    return true;
  };
  session().menu.DisassembleFile.Click();
  EXPECT_EQ(marks, "MMMUUD");
}

TEST_F(KeyboardTest, CommentsAreTypedIntoTheTable) {
  Play("F4");
  QTest::mouseClick(Find<GridView>("Table1").viewport(), Qt::LeftButton, {}, {800, 30});
  EXPECT_EQ(FocusName(), "CommentsTxt");
  Play("5 Space > Space 4 \" Alt+D");  // the key of a button that is disabled
  EXPECT_EQ(Cell(1, kCommentColumn), "5 > 4");
  Play("Home Right \" 0");  // a double quote goes at once
  EXPECT_EQ(Find<QLineEdit>("CommentsTxt").text(), "50 > 4");
}

TEST_F(KeyboardTest, ArrowsReachEveryInstructionKey) {
  std::set<std::string> reached = {"INST 0"};
  std::vector<std::string> waiting = {"INST 0"};
  while (!waiting.empty()) {
    const QString from = QString::fromStdString(waiting.back());
    waiting.pop_back();
    for (const char* arrow : {"Left", "Right", "Up", "Down"}) {
      Find(from).setFocus();
      Play(arrow);
      if (reached.insert(FocusName()).second) waiting.push_back(FocusName());
    }
  }
  EXPECT_EQ(reached.size(), 80U);
}

}  // namespace
}  // namespace quilla
