// A monkey at the real windows: keys, clicks, drags, held buttons, menus and dialogs by chance,
// through the door of the window system. QUILLA_WALKS tells how many thousand acts, QUILLA_SEED the
// seed.
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QPrinterInfo>
#include <QTest>
#include <random>

#include "scenario.h"
#include "trainer/board_port.h"
#include "walk/walk.h"
#include "window/help.h"
#include "window/qt_outside.h"
#include "window/widget_check.h"

namespace quilla {
namespace {

constexpr std::u16string_view kLetters = u"abcdAFHLM0123.+-,\"& \u00e4\u7d42";
constexpr const char* kFiles[] = {"a.baf", "sum.baf", "stack.baf", "sum.hex", "c.pdf", "no/b.hex"};

class Monkey : public QObject {
 public:
  Monkey(int seed, int& acts) : random_(static_cast<unsigned>(seed)), acts_(acts) {
    outside_.serial_port().LeadTo(std::make_shared<trainer::BoardPort>());
    connect(&outside_.gate(), &Gate::Entered, this, [this] { settled_ = false; });
    connect(&outside_.gate(), &Gate::Left, this, [this] { settled_ = true; });
    outside_.event_loop().on_made = [this](auto& form, auto& window) { help_.AddTo(form, window); };
    quilla_.Start();
    QTest::keyClick(outside_.event_loop().WindowOf(*quilla_.Forms()[0]), Qt::Key_F1);
    Act();
    QApplication::exec();
    outside_.event_loop().DestroyWindows();
  }

  std::string fault;

 private:
  int Below(std::size_t limit) { return static_cast<int>(random_() % limit); }

  void Check() {
    Session& session = quilla_.panel()->session();
    session.menu.AssembleFile.Click = nullptr;  // it may never end
    fault = walk::BrokenRule(session);
    for (const Form* form : quilla_.Forms()) {
      const QWidget* const window = outside_.event_loop().WindowOf(*form);
      if (window == nullptr || !window->isVisible()) continue;
      auto lines = DifferencesFromModels(*window->findChild<FormMirror*>(), *window);
      const QWidget* const focus = window->focusWidget();
      const bool is_usable = focus == nullptr || (focus->isVisible() && focus->isEnabled());
      if (window->isActiveWindow() && !is_usable) lines << "the focus is lost";
      fault += lines.join(u'\n').toStdString();
    }
    if (outside_.gate().TakeEscaped() != nullptr) fault += "an exception has escaped";
  }

  // The next act waits in whichever loop runs by then: this one may open a dialog.
  void Act() {
    if (outside_.gate().is_shut()) return;
    if (settled_ && quilla_.panel() != nullptr) Check();
    if (!fault.empty() || --acts_ < 0) return outside_.event_loop().End();
    QTimer::singleShot(quilla_.panel() == nullptr ? 1 : 0, this, &Monkey::Act);
    QWidget* top = QApplication::activePopupWidget();
    if (top == nullptr) top = QApplication::activeModalWidget();
    const bool is_any = top == nullptr;
    for (const QWindow* each : QGuiApplication::topLevelWindows()) {
      const bool is_next = top == nullptr || Below(3) == 0;
      if (is_any && is_next && each->isVisible()) top = QWidget::find(each->winId());
    }
    const int dice = Below(1000);
    if (top == nullptr) return;
    if (const auto* const dialog = qobject_cast<QFileDialog*>(top)) {
      auto* const name = dialog->findChild<QLineEdit*>("fileNameEdit");
      name->setText(QDir::current().filePath(kFiles[Below(std::size(kFiles))]));
      QMetaObject::invokeMethod(top, dice < 300 ? "reject" : "accept");
    } else if (dice < 300) {
      dice < 5 ? void(top->close()) : PressKey(*top);
    } else {
      UseMouse(*top);
    }
  }

  void PressKey(QWidget& top) {
    const QChar letter = kLetters[Below(kLetters.size())];
    const bool is_letter = Below(2) > 0;
    const int key =
        is_letter ? letter.toUpper().unicode() : Qt::Key_Escape + Below(Below(2) > 0 ? 6 : 0x3a);
    const Qt::KeyboardModifiers with(Below(4) > 0 ? 0 : Qt::ShiftModifier << Below(3));
    const QString text = is_letter && with != Qt::ControlModifier ? QString(letter) : QString();
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QWindow* const focus = QGuiApplication::focusWindow();
      qt_handleKeyEvent(focus == nullptr ? top.windowHandle() : focus, type, key, with, text);
    }
  }

  // A button stays held for some acts, in the window where it was pressed.
  void UseMouse(QWidget& top) {
    const bool held = held_in_ != nullptr;
    const bool moves = Below(5) == 0;
    QWidget& window = held ? *held_in_ : top;
    auto parts = window.findChildren<QWidget*>();
    parts.removeIf([this](const QWidget* part) {
      const bool is_live = part->isEnabled() && part->focusPolicy() != Qt::NoFocus;
      return !part->isVisible() || (!is_live && Below(20) > 0);
    });
    parts << &window;
    const QWidget& part = *parts[Below(parts.size())];
    const QPoint place(Below(part.width() + 1u), Below(part.height() + 1u));
    if (!held || moves) place_ = part.mapTo(&window, place);
    if (!held) button_ = Below(4) > 0 ? Qt::LeftButton : Qt::RightButton;
    if (window.windowType() != Qt::Popup) window.activateWindow();
    held_in_ = held == moves ? &window : nullptr;
    const auto type = held ? QEvent::MouseButtonRelease : QEvent::MouseButtonPress;
    qt_handleMouseEvent(window.windowHandle(), place_, window.mapToGlobal(place_),
                        held_in_ == nullptr ? Qt::NoButton : button_,
                        moves ? Qt::NoButton : button_, moves ? QEvent::MouseMove : type, {},
                        time_ += 1 + Below(700));
  }

  std::mt19937 random_;
  int& acts_;
  QtOutside outside_;
  Quilla quilla_{outside_.ports()};
  Help help_{quilla_};
  bool settled_ = false;
  QPointer<QWidget> held_in_;
  Qt::MouseButton button_ = Qt::NoButton;
  QPoint place_;
  int time_ = 0;
};

TEST(MonkeyTest, WindowsShowTheModelsWhateverIsDone) {
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "it would print";
  int acts = 1000 * std::max(2, qEnvironmentVariableIntValue("QUILLA_WALKS"));
  for (int seed = qEnvironmentVariableIntValue("QUILLA_SEED"); acts > 0; ++seed) {
    const robot::ScratchFolder folder(QUILLA_SOURCE_DIR "/examples");
    ASSERT_EQ(Monkey(seed, acts).fault, "") << "seed " << seed;
  }
}

}  // namespace
}  // namespace quilla
