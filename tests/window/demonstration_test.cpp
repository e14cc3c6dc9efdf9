// Demonstrations in the real windows, with the desktop's own boxes, dialogs and clock.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <sstream>

#include "demo/show_me.h"
#include "robot/robot.h"
#include "scenario.h"
#include "window/when_open.h"

namespace quilla {
namespace {

constexpr int kLongestMs = 30000;

class DemonstrationTest : public testing::Test {
 protected:
  void SetUp() override {
    quilla_.Start();
    ASSERT_TRUE(QTest::qWaitFor([this] { return quilla_.panel() != nullptr; }));
    show_me_.set_pace(1);
  }
  void TearDown() override { outside_.event_loop().DestroyWindows(); }

  Session& session() { return quilla_.panel()->session(); }
  bool IsOver() { return !show_me_.demonstration()->is_under_way(); }
  static QWidget& Bar() {
    const QWidgetList tops = QApplication::topLevelWidgets();
    const auto is_bar = [](const QWidget* top) { return top->objectName() == u"CaptionBar"; };
    return **std::find_if(tops.begin(), tops.end(), is_bar);
  }

  QtOutside outside_;
  Quilla quilla_{outside_.ports()};
  demo::ShowMe show_me_{quilla_, outside_};
};

std::string Cells(const Grid& grid) {
  std::string cells;
  for (int row = 0; row < grid.Rows(); ++row) {
    for (int column = 0; column < grid.Cols(); ++column) {
      cells += grid.TextMatrix(row, column) + '\t';
    }
  }
  return cells;
}

TEST_F(DemonstrationTest, EveryOneEndsInTheWindowAsOnTheModels) {
  const robot::ScratchFolder folder("");
  for (const char* name : {"first-program", "loop", "subroutine", "equivalents", "simulator",
                           "find-replace", "link"}) {
    QFile file(QString(":/demos/%1.robot").arg(name));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    std::istringstream script(file.readAll().toStdString());
    std::ostringstream transcript;
    robot::Robot robot(script, transcript, transcript);
    EXPECT_EQ(robot.Play(), robot::kPlayed) << transcript.str();
    for (const char* fault : {"refused", "-> cancel"}) {
      EXPECT_EQ(transcript.str().find(fault), std::string::npos) << transcript.str();
    }
    session().FileChanged = false;
    show_me_.Begin(name);
    ASSERT_TRUE(QTest::qWaitFor([this] { return IsOver(); }, kLongestMs)) << name;
    const Session& model = robot.quilla().panel()->session();
    EXPECT_EQ(Cells(session().Table1), Cells(model.Table1)) << name;
    EXPECT_EQ(session().HexList.items(), model.HexList.items()) << name;
    EXPECT_EQ(session().CurrentPanelState, PanelState::kReady) << name;
    EXPECT_TRUE(Bar().isVisible() && Bar().screen()->geometry().contains(Bar().geometry())) << name;
  }
  QWidget* const panel = outside_.event_loop().WindowOf(quilla_.panel()->form());
  EXPECT_EQ(Bar().windowHandle()->transientParent(), panel->windowHandle());
  const auto& keys = *panel->findChild<QWidget*>("InstructionBox");
  const QRect place(keys.mapToGlobal(QPoint()), keys.size());
  EXPECT_FALSE(Bar().geometry().intersects(place)) << "the keys are in sight";
  QTest::keyClick(panel, Qt::Key_Escape);
  EXPECT_FALSE(Bar().isVisible());
}

TEST_F(DemonstrationTest, AsksBeforeItTakesTheTable) {
  session().FileChanged = true;
  WhenOpen<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Cancel)->click(); });
  show_me_.Begin("loop");
  EXPECT_EQ(show_me_.demonstration(), nullptr);
  EXPECT_TRUE(session().FileChanged);
}

TEST_F(DemonstrationTest, LeavesADialogOpenWhereItIsStopped) {
  QTimer look;
  bool held = false;
  QObject::connect(&look, &QTimer::timeout, [&] {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) return;
    Bar().findChildren<QPushButton*>().last()->click();
    held = !IsOver();  // by the dialog, until the user closes it
    dialog->close();
  });
  look.start(0);
  show_me_.Begin("equivalents");
  EXPECT_TRUE(QTest::qWaitFor([this] { return IsOver(); }));
  EXPECT_TRUE(held);
  EXPECT_EQ(session().XXEqtList.items().front(), kUnknownByte);
  EXPECT_FALSE(Bar().isVisible());
}

}  // namespace
}  // namespace quilla
