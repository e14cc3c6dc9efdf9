// The disassembler's window worked with the keyboard alone.
#include <fstream>

#include "scenario.h"
#include "window/panel_fixture.h"

namespace quilla {
namespace {

using DataWindowTest = PanelTest;

TEST_F(DataWindowTest, RowsAreMarkedWithTheKeys) {
  const robot::ScratchFolder folder("");
  std::ofstream("a.hex") << ":05800000000000003E3D\n:00000001FF\n";
  outside_.file_dialogs.Queue("a.hex");
  std::string marks;
  outside_.event_loop.play_command = [&] {
    Form& form = *quilla_.panel()->Dialogs().back();
    const auto& model = dynamic_cast<Grid&>(*form.Find("DataTable"));
    QWidget& dialog = *hands_.shown().at(&form).window;
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
      QTest::keyClick(dialog.focusWidget(), key, modifiers);
    };
    dialog.findChild<GridView*>("DataTable")->setFocus();
    press(Qt::Key_M, Qt::AltModifier);
    for (const Qt::Key arrow : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) {
      QTest::keyPress(dialog.focusWidget(), arrow, Qt::ShiftModifier);
    }
    EXPECT_EQ(model.TextMatrix(1, 2), "Unwanted") << "nothing is marked until Shift is let go";
    QTest::keyRelease(dialog.focusWidget(), Qt::Key_Shift);
    press(Qt::Key_D, Qt::AltModifier);
    press(Qt::Key_End, Qt::ControlModifier);
    press(Qt::Key_Space);
    QTest::keyPress(dialog.focusWidget(), Qt::Key_Up, Qt::ShiftModifier);
    press(Qt::Key_Tab);  // given up before Shift is let go
    QTest::keyRelease(dialog.focusWidget(), Qt::Key_Shift);
    press(Qt::Key_Tab);
    EXPECT_EQ(dialog.focusWidget()->objectName(), "DoneButton");
    for (int row = 1; row < model.Rows(); ++row) marks += model.TextMatrix(row, 2) + '\n';
    dynamic_cast<Button&>(*form.Find("CancelButton")).Click();
    return true;
  };
  session().menu.DisassembleFile.Click();
  EXPECT_EQ(marks, "Mnemonic\nMnemonic\nMnemonic\nUnwanted\nData Byte\n");
}

}  // namespace
}  // namespace quilla
