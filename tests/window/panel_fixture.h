// The whole program with its real windows; boxes, dialogs, clock, port and printer are the robot's.
#ifndef QUILLA_TESTS_WINDOW_PANEL_FIXTURE_H_
#define QUILLA_TESTS_WINDOW_PANEL_FIXTURE_H_

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QTest>
#include <sstream>
#include <string>

#include "panel/quilla.h"
#include "robot/scripted_outside.h"
#include "window/main_window.h"
#include "window/widget_hands.h"

namespace quilla {

class PanelTest : public testing::Test {
 protected:
  class Hands : public robot::WidgetHands {
   public:
    using WidgetHands::shown;
    using WidgetHands::WidgetHands;
  };

  static constexpr QSize kSmallScreen{1366, 768};

  void SetUp() override {
    quilla_.Start();
    outside_.clock.PassAll();
    window().resize(kSmallScreen);
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
  }

  Session& session() { return quilla_.panel()->session(); }
  PanelState state() { return session().CurrentPanelState; }
  MainWindow& window() {
    return static_cast<MainWindow&>(*hands_.shown().at(&session().ProgrammingPanel).window);
  }
  template <typename Widget = QWidget>
  Widget& Find(const QString& name) {
    auto* const widget = window().findChild<Widget*>(name);
    if (widget == nullptr) throw std::logic_error("no widget " + name.toStdString());
    return *widget;
  }
  std::string FocusName() { return window().focusWidget()->objectName().toStdString(); }
  /// Types into whatever has the focus, key by key.
  void Type(const QString& text) {
    for (const QChar character : text) {
      QTest::keyClick(window().focusWidget(), character.toLatin1());
    }
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(window().focusWidget(), key, modifiers);
  }
  void Click(const QString& name) { QTest::mouseClick(&Find(name), Qt::LeftButton); }
  QWidget& OpenSimulator() {
    window().findChild<QAction*>("SimulationView")->trigger();
    outside_.clock.PassAll();
    for (const auto& [form, shown] : hands_.shown()) {
      const bool owned = form->owner == &session().ProgrammingPanel;
      if (owned && shown.window->windowType() == Qt::Dialog) return *shown.window;
    }
    throw std::logic_error("no simulator");
  }
  std::string Cell(int row, Column column) { return session().Table1.TextMatrix(row, column); }

  std::ostringstream transcript_;
  robot::ScriptedOutside outside_{transcript_};
  Quilla quilla_{outside_.ports};
  Hands hands_{outside_.event_loop};
};

}  // namespace quilla

#endif  // QUILLA_TESTS_WINDOW_PANEL_FIXTURE_H_
