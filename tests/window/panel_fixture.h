// The whole program with its real windows; boxes, dialogs, clock, port and printer are the robot's.
#ifndef QUILLA_TESTS_WINDOW_PANEL_FIXTURE_H_
#define QUILLA_TESTS_WINDOW_PANEL_FIXTURE_H_

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMouseEvent>
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
  /// Plays words: the name of a menu entry, which is chosen, that of a widget, '_' for its blanks,
  /// which gets the focus, that of a key, which is pressed, or letters to type.
  void Play(const QString& words) { Play(window(), words); }
  static void Play(QWidget& top, const QString& words) {
    for (QString word : words.split(' ')) {
      const QKeyCombination keys = QKeySequence(word)[0];
      if (auto* const action = top.findChild<QAction*>(word)) {
        action->trigger();
      } else if (auto* const widget = top.findChild<QWidget*>(word.replace('_', ' '))) {
        widget->setFocus();
      } else if (word.size() > 1 && keys.key() != Qt::Key_unknown) {
        QTest::keyClick(top.focusWidget(), keys.key(), keys.keyboardModifiers());
      } else {
        for (const QChar letter : word) QTest::keyClick(top.focusWidget(), letter.toLatin1());
      }
    }
  }
  void Click(const QString& name) { QTest::mouseClick(&Find(name), Qt::LeftButton); }
  static void Move(QWidget& widget, QPoint place, Qt::MouseButtons buttons = Qt::NoButton) {
    QMouseEvent move(QEvent::MouseMove, place, {}, Qt::NoButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &move);
  }
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
  /// The row over the cursor: label, address, mnemonic and opcode.
  std::string LastRow() {
    std::string cells;
    for (const Column column : {kLabelColumn, kAddressColumn, kMnemonicColumn, kOpcodeColumn}) {
      cells += (column > 0 ? "|" : "") + Cell(session().CurrentRow - 1, column);
    }
    return cells;
  }

  std::ostringstream transcript_;
  robot::ScriptedOutside outside_{transcript_};
  Quilla quilla_{outside_.ports};
  Hands hands_{outside_.event_loop};
};

}  // namespace quilla

#endif  // QUILLA_TESTS_WINDOW_PANEL_FIXTURE_H_
