// Ends from outside, in the window: the user is asked, and the work is in a rescue file meanwhile.
#include "window/session_end.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <functional>

#include "window/when_open.h"

namespace quilla {
namespace {

class SessionEndTest : public testing::Test {
 protected:
  void SetUp() override {
    qputenv("XDG_STATE_HOME", folder_.path().toUtf8());
    quilla_.Start();
    ASSERT_TRUE(QTest::qWaitFor([this] { return quilla_.panel() != nullptr; }));
    quilla_.panel()->session().FileChanged = true;
  }
  void TearDown() override {
    outside_.event_loop().DestroyWindows();
    qunsetenv("XDG_STATE_HOME");
  }

  /// Asks for the end, and acts on the question.
  void End(const std::function<void(QMessageBox&)>& act) {
    Soon([this] {
      session_end_.End(true);
      QApplication::exit();
    });
    WhenOpen<QMessageBox>(act);
    QApplication::exec();
  }
  bool IsRescued() const { return QFile::exists(folder_.filePath("quilla/Pgm1.baf.rescue")); }
  bool HasEnded() { return outside_.gate().is_shut(); }

  const QTemporaryDir folder_;
  QtOutside outside_;
  Quilla quilla_{outside_.ports()};
  SessionEnd session_end_{quilla_, outside_};
};

TEST_F(SessionEndTest, WhereSomebodyAnswersTheAnswerHolds) {
  for (const auto button : {QMessageBox::Cancel, QMessageBox::Ok}) {
    End([&](QMessageBox& box) {
      EXPECT_TRUE(box.text().startsWith("Are you sure you want to quit?"));
      EXPECT_TRUE(IsRescued()) << "the display may go";
      box.button(button)->click();
    });
    EXPECT_FALSE(IsRescued());
    EXPECT_EQ(HasEnded(), button == QMessageBox::Ok);
  }
}

TEST_F(SessionEndTest, ASignalWhereNobodyAnswersLeavesTheWork) {
  End([](QMessageBox&) { std::raise(SIGTERM); });
  EXPECT_TRUE(HasEnded()) << "the question stood already";
  EXPECT_TRUE(IsRescued());
}

}  // namespace
}  // namespace quilla
