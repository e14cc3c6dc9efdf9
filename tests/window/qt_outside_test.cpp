// The desktop's side: texts, boxes, file dialogs, clock, event loop and the door into the models.
#include "window/qt_outside.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>
#include <QWindow>
#include <functional>
#include <map>
#include <vector>

#include "formats/hex_file.h"
#include "panel/quilla.h"
#include "platform/failure.h"
#include "window/form_mirror.h"
#include "window/qt_text.h"
#include "window/start.h"
#include "window/when_open.h"

namespace quilla {
namespace {

TEST(QtTextTest, TakesTextsThatAreNoUtf8AsWindows1252) {
  EXPECT_EQ(ToQt("loop \xC3\xA9"), QStringLiteral(u"loop \u00E9"));
  EXPECT_EQ(ToQt("caf\xE9 \x80 \x93"), QStringLiteral(u"caf\u00E9 \u20AC \u201C"));
  EXPECT_EQ(ToQt("\xC3\xA9\xE9"), QStringLiteral(u"\u00C3\u00A9\u00E9"))
      << "the whole text or nothing";
  EXPECT_EQ(FromQt(QStringLiteral(u"\u0915\u20AC")), "\xE0\xA4\x95\xE2\x82\xAC");
  EXPECT_EQ(LabelText("a && b &c"), "a & b &c");
}

TEST(GateTest, FailuresEndHereAndOthersAreKept) {
  Gate gate;
  gate.Enter([] { throw Failure(ErrorNumber::kNotANumber); });
  EXPECT_EQ(gate.TakeEscaped(), nullptr);
  gate.Enter([] { throw 5; });
  EXPECT_THROW(std::rethrow_exception(gate.TakeEscaped()), int);
  EXPECT_EQ(gate.TakeEscaped(), nullptr);
  gate.Shut();
  gate.Enter([] { ADD_FAILURE() << "the gate is shut"; });
}

TEST(QtMessageBoxesTest, ShowTheTextAndGiveTheButton) {
  const std::map<BoxAnswer, QMessageBox::StandardButton> buttons = {
      {BoxAnswer::kOk, QMessageBox::Ok},
      {BoxAnswer::kCancel, QMessageBox::Cancel},
      {BoxAnswer::kYes, QMessageBox::Yes},
      {BoxAnswer::kNo, QMessageBox::No}};
  const struct {
    BoxButtons buttons;
    std::vector<BoxAnswer> answers;  // the last is that of Esc
    BoxAnswer preselected;
  } cases[] = {{BoxButtons::kOk, {BoxAnswer::kOk}, BoxAnswer::kOk},
               {BoxButtons::kOkCancel, {BoxAnswer::kOk, BoxAnswer::kCancel}, BoxAnswer::kCancel},
               {BoxButtons::kYesNo, {BoxAnswer::kYes, BoxAnswer::kNo}, BoxAnswer::kNo},
               {BoxButtons::kYesNoCancel,
                {BoxAnswer::kYes, BoxAnswer::kNo, BoxAnswer::kCancel},
                BoxAnswer::kYes}};
  QtMessageBoxes boxes;
  for (const auto& each : cases) {
    for (const BoxAnswer answer : each.answers) {
      WhenOpen<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.text(), "Save <b>changes</b>?");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "Quilla");
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(box.defaultButton(), box.button(buttons.at(each.preselected)));
        EXPECT_EQ(box.buttons().size(), static_cast<qsizetype>(each.answers.size()));
        box.button(buttons.at(answer))->click();
      });
      EXPECT_EQ(boxes.Show(BoxIcon::kQuestion, "Save <b>changes</b>?", each.buttons), answer);
    }
    WhenOpen<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(boxes.Show(BoxIcon::kQuestion, "?", each.buttons), each.answers.back());
  }
}

TEST(QtFileDialogsTest, SavingBeginsWithANameAndAsksOfTheFileThatIsWritten) {
  const QTemporaryDir folder;
  const auto in_folder = [&](const char* name) { return QDir(folder.path()).filePath(name); };
  QFile written(in_folder("a.baf"));
  ASSERT_TRUE(written.open(QIODevice::WriteOnly));
  QtOutside outside;
  Quilla quilla(outside.ports());
  Start(quilla, outside);
  const Form& splash = *quilla.Forms().front();
  ASSERT_TRUE(QTest::qWaitFor([&] { return outside.event_loop().WindowOf(splash) == nullptr; }));
  Session& session = quilla.panel()->session();

  const auto enter = [](QFileDialog& dialog, const QString& path) {
    dialog.findChild<QLineEdit*>()->setText(path);
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
  };
  const auto refuse_to_replace = [](QMessageBox& box) {
    EXPECT_EQ(box.text(), "a.baf already exists. Do you want to replace it?");
    WhenOpen<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    box.button(QMessageBox::No)->click();
  };
  const auto go_on_from_no_folder = [&](QMessageBox& box) {
    WhenOpen<QFileDialog>([&](QFileDialog& dialog) {
      WhenOpen<QMessageBox>(refuse_to_replace);
      enter(dialog, in_folder("a.new"));
    });
    box.button(QMessageBox::Ok)->click();
  };
  WhenOpen<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QLineEdit*>()->text(), "Pgm1.baf");
    EXPECT_EQ(dialog.findChild<QLineEdit*>()->selectedText(), "Pgm1");
    const QTreeView& list = *dialog.findChild<QTreeView*>();
    EXPECT_EQ(list.header()->sectionResizeMode(3), QHeaderView::ResizeToContents);
    WhenOpen<QMessageBox>(go_on_from_no_folder);
    enter(dialog, in_folder("none/b.baf"));
  });
  session.menu.SaveAsFile.Choose();
  EXPECT_EQ(written.size(), 0);
  EXPECT_FALSE(QApplication::windowIcon().isNull());
  WhenOpen<QFileDialog>([&](QFileDialog& dialog) { enter(dialog, in_folder("s\u00FCm.baf")); });
  session.menu.SaveAsFile.Choose();
  EXPECT_TRUE(QFile::exists(in_folder("s\u00FCm.baf")));
  WhenOpen<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Save to Hex file");
    EXPECT_EQ(dialog.nameFilters(), QStringList("Hex Files (*.hex)"));
    EXPECT_EQ(dialog.directory(), QDir(folder.path())) << "it opens where the last one ended";
    EXPECT_EQ(dialog.findChild<QLineEdit*>()->text(), "s\u00FCm.hex");
    enter(dialog, in_folder("of two"));
  });
  SaveHexRecords(session, 1, FailedWrite::kClosesChannel, [] {});
  EXPECT_TRUE(QFile::exists(in_folder("of two"))) << "no ending is added";
  EXPECT_FALSE(QFile::exists(QSettings(QSettings::UserScope, "QtProject").fileName()));
  outside.event_loop().DestroyWindows();
}

class QtEventLoopTest : public testing::Test {
 protected:
  Gate gate_;
  Form form_{"Form"};
  Form other_{"Other"};
  QtEventLoop loop_{gate_, [this](Form& form) {
                      auto window = std::make_unique<QWidget>();
                      new FormMirror(gate_, loop_, form, *window);
                      return window;
                    }};
};

TEST_F(QtEventLoopTest, AModalWindowHoldsItsCallerUntilItIsClosed) {
  bool may_close = false;
  form_.QueryUnload = [&] { return may_close; };
  Soon([&] {
    loop_.WindowOf(form_)->close();
    EXPECT_TRUE(form_.visible()) << "its question was answered with no";
    EXPECT_TRUE(loop_.WindowOf(form_)->isVisible());
    may_close = true;
    loop_.WindowOf(form_)->close();
  });
  loop_.ShowModal(form_);
  EXPECT_FALSE(loop_.WindowOf(form_)->isVisible());
  QWidget* const first = loop_.WindowOf(form_);
  loop_.Show(form_);
  EXPECT_EQ(loop_.WindowOf(form_), first) << "a window is kept for the next time";
  EXPECT_TRUE(first->isVisible());
}

TEST_F(QtEventLoopTest, AnOwnedWindowStandsOverItsOwnerAndComesBackFromBeingMinimised) {
  other_.owner = &form_;
  loop_.Show(form_);
  loop_.Show(other_);
  QWidget& owned = *loop_.WindowOf(other_);
  EXPECT_EQ(owned.windowHandle()->transientParent(), loop_.WindowOf(form_)->windowHandle());
  owned.showMinimized();
  loop_.Show(other_);
  EXPECT_FALSE(owned.isMinimized());
}

TEST_F(QtEventLoopTest, TheEndLeavesEveryWaitInside) {
  bool went_on = false;
  Soon([&] {
    gate_.Enter([&] {
      loop_.ShowModal(form_);
      went_on = true;
    });
  });
  Soon([&] { gate_.Enter([&] { loop_.End(); }); });
  QApplication::exec();
  EXPECT_FALSE(went_on);
  EXPECT_TRUE(gate_.is_shut());
}

}  // namespace
}  // namespace quilla
