#include "demo/demonstration.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScopeGuard>
#include <algorithm>
#include <vector>

#include "demo/mark.h"
#include "trainer/board_port.h"
#include "window/form_mirror.h"
#include "window/qt_text.h"

namespace quilla::demo {
namespace {

/// The demonstration is over under an act. It is no std::exception, as all that ends a play.
struct Stopped {};

constexpr int kKeyParts = 3;  // a character takes a part of the time of an act
constexpr int kReadingMsPerCharacter = 45;
constexpr int kFastest = 4;
constexpr char kComment = '#';

bool IsOfProgram(const QWidget& window) {
  return window.findChild<FormMirror*>({}, Qt::FindDirectChildrenOnly) != nullptr ||
         qobject_cast<const QMenu*>(&window) != nullptr;
}

bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
      return true;
    default:
      return false;
  }
}

QMessageBox::StandardButton QtButton(BoxAnswer answer) {
  switch (answer) {
    case BoxAnswer::kOk:
      return QMessageBox::Ok;
    case BoxAnswer::kCancel:
      return QMessageBox::Cancel;
    case BoxAnswer::kYes:
      return QMessageBox::Yes;
    case BoxAnswer::kNo:
      return QMessageBox::No;
  }
  return QMessageBox::NoButton;
}

/// The menus from the menu bar to an entry.
std::vector<QMenu*> MenusOf(const QAction& entry) {
  std::vector<QMenu*> menus;
  for (auto* menu = qobject_cast<QMenu*>(entry.parent()); menu != nullptr;
       menu = qobject_cast<QMenu*>(menu->parent())) {
    menus.insert(menus.begin(), menu);
  }
  return menus;
}

}  // namespace

Demonstration::Demonstration(Quilla& quilla, QtOutside& outside, const QString& script)
    : quilla_(quilla), outside_(outside), lines_(script.split(u'\n')) {
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &Demonstration::Tick);
  connect(&bar_, &CaptionBar::PauseClicked, this, &Demonstration::TogglePause);
  connect(&bar_, &CaptionBar::StepClicked, this, &Demonstration::Step);
  connect(&bar_, &CaptionBar::FasterClicked, this, &Demonstration::Hurry);
  connect(&bar_, &CaptionBar::StopClicked, this, &Demonstration::End);
}

void Demonstration::Begin() {
  outside_.serial_port().LeadTo(std::make_shared<trainer::BoardPort>());
  commands_.Begin();
  Tick();
}

void Demonstration::Stop() {
  if (over_) return;
  over_ = true;
  outside_.serial_port().LeadTo(nullptr);
  timer_.stop();
  bar_.ShowOver();
  if (act_ != nullptr) act_->quit();
}

void Demonstration::End() {
  Stop();
  qApp->removeEventFilter(this);
  bar_.hide();
}

void Demonstration::QueuePath(std::optional<std::string> path) {
  if (path) path = FromQt(folder_.filePath(ToQt(*path)));
  paths_.push_back(std::move(path));
}

// A dialog that an act opens holds the act until it is closed; the ticks go on inside it.
void Demonstration::Tick() {
  if (over_ || outside_.gate().is_shut()) return Stop();
  qApp->installEventFilter(this);  // before the filters of windows that were made meanwhile
  bar_.StandOver(FrontWindow());
  Schedule(pace_ms_);
  if (AnswerBox()) return;
  if (act_ != nullptr) return act_->quit();
  if (!ShowCaption()) PlayNext();
}

QWidget& Demonstration::FrontWindow() const {
  if (QWidget* const dialog = QApplication::activeModalWidget()) return *dialog;
  const std::vector<Form*> forms = quilla_.Forms();
  const auto front = std::find_if(forms.rbegin(), forms.rend(), [this](const Form* form) {
    const QWidget* const window = outside_.event_loop().WindowOf(*form);
    return window != nullptr && window->isVisible();
  });
  return WindowOf(**front);
}

void Demonstration::Schedule(int milliseconds) {
  if (!paused_) timer_.start(milliseconds / speed_);
}

bool Demonstration::ShowCaption() {
  QStringList caption;
  while (!lines_.isEmpty() && lines_.first().trimmed().isEmpty()) lines_.removeFirst();
  while (line_.empty() && !lines_.isEmpty() && lines_.first().startsWith(kComment)) {
    caption << lines_.takeFirst().mid(1).trimmed();
  }
  if (caption.isEmpty()) return false;
  const QString text = caption.join(u' ');
  bar_.SetCaption(text);
  Schedule(pace_ms_ + static_cast<int>(text.size()) * kReadingMsPerCharacter * pace_ms_ / kPaceMs);
  return true;
}

void Demonstration::PlayNext() {
  try {
    if (line_.empty()) {
      if (lines_.isEmpty()) return Stop();
      line_ = robot::CommandsOf(FromQt(lines_.takeFirst()));
    }
    robot::Words command = std::move(line_.front());
    line_.pop_front();
    PlayCommand(std::move(command));
  } catch (const robot::NotACommand& fault) {
    qCritical("A fault in a demonstration: %s", fault.reason().c_str());
    Stop();
  } catch (const Stopped&) {
  }
}

// What cannot be done shows that the user has led the program elsewhere, by a box of his own.
void Demonstration::PlayCommand(robot::Words command) {
  ++depth_;
  const auto leave = qScopeGuard([this] { --depth_; });
  commands_.Run(std::move(command));
  if (transcript_.str().find("refused") != std::string::npos) Stop();
}

void Demonstration::Await(int milliseconds) {
  Schedule(milliseconds);
  QEventLoop turn;
  act_ = &turn;
  turn.exec();
  act_ = nullptr;
  if (over_ || outside_.gate().is_shut()) throw Stopped{};
}

void Demonstration::Aim(QWidget& widget, const QRect& place) {
  if (over_) throw Stopped{};
  const Mark mark(widget, place);
  Await(pace_ms_);
}

void Demonstration::AimKey(QWidget& widget) {
  if (over_) throw Stopped{};
  const Mark mark(widget, widget.rect());
  Await(pace_ms_ / kKeyParts);
}

void Demonstration::Choose(QAction& action) {
  const std::vector<QMenu*> menus = MenusOf(action);
  const auto close = [&menus] {
    std::for_each(menus.rbegin(), menus.rend(), [](QMenu* menu) { menu->hide(); });
  };
  for (QMenu* menu : menus) {
    QAction* const opener = menu->menuAction();
    if (auto* const bar = qobject_cast<QMenuBar*>(menu->parent())) {
      menu->popup(bar->mapToGlobal(bar->actionGeometry(opener).bottomLeft()));
    } else if (auto* const outer = qobject_cast<QMenu*>(menu->parent())) {
      outer->setActiveAction(opener);
      menu->popup(outer->mapToGlobal(outer->actionGeometry(opener).topRight()));
    }
  }
  if (!menus.empty()) menus.back()->setActiveAction(&action);
  {
    const auto leave = qScopeGuard(close);
    Await(pace_ms_);
  }
  action.trigger();
}

void Demonstration::Pass(int milliseconds) { Await(milliseconds); }

void Demonstration::PassAll() {
  do {
    Await(pace_ms_ / kKeyParts);
  } while (!outside_.clock().IsAtRest());
}

Form* Demonstration::modal() const {
  for (Form* form : quilla_.Forms()) {
    const QWidget* const window = outside_.event_loop().WindowOf(*form);
    if (window != nullptr && window->isModal() && window->isVisible()) return form;
  }
  return nullptr;
}

Form* Demonstration::active() const {
  if (Form* const dialog = modal()) return dialog;
  return active_ != nullptr && active_->visible() ? active_ : nullptr;
}

bool Demonstration::AnswerBox() {
  QWidget* const window = QApplication::activeModalWidget();
  auto* const box = qobject_cast<QDialog*>(window);
  if (box == nullptr) return false;
  if (seen_box_ != box) {  // it stands there for a moment
    seen_box_ = box;
  } else if (auto* const message = qobject_cast<QMessageBox*>(box)) {
    Answer(*message);
  } else if (auto* const files = qobject_cast<QFileDialog*>(box)) {
    Answer(*files);
  }
  return true;
}

void Demonstration::Answer(QMessageBox& box) {
  const QList<QAbstractButton*> buttons = box.buttons();
  QAbstractButton* button = buttons.size() == 1 ? buttons.first() : nullptr;
  if (button == nullptr && !answers_.empty()) {
    button = box.button(QtButton(answers_.front()));
    answers_.pop_front();
  }
  if (button != nullptr) button->click();
}

void Demonstration::Answer(QFileDialog& dialog) {
  if (paths_.empty()) return;
  const std::optional<std::string> path = std::move(paths_.front());
  paths_.pop_front();
  if (path) dialog.selectFile(ToQt(*path));
  static_cast<QDialog&>(dialog).done(path ? QDialog::Accepted : QDialog::Rejected);
}

void Demonstration::TogglePause() {
  paused_ = !paused_;
  bar_.ShowPaused(paused_);
  if (paused_) {
    timer_.stop();
  } else {
    Tick();
  }
}

void Demonstration::Step() {
  if (!paused_) TogglePause();
  Tick();
}

void Demonstration::Hurry() {
  speed_ = speed_ == kFastest ? 1 : 2 * speed_;
  bar_.ShowSpeed(speed_);
}

// The windows of the program take no input but that of the demonstration; boxes and the guide do.
bool Demonstration::eventFilter(QObject* watched, QEvent* event) {
  if (!event->spontaneous() || !watched->isWidgetType()) return false;
  if (!IsOfProgram(*static_cast<QWidget*>(watched)->window())) return false;
  if (over_) return EndsBy(*event);
  if (event->type() == QEvent::Close) {
    Stop();
    return false;
  }
  if (!IsInput(event->type())) return false;
  event->accept();
  if (event->type() == QEvent::KeyPress) GuideBy(static_cast<QKeyEvent*>(event)->key());
  return true;
}

// The first Esc after the last caption takes that away, and does nothing else.
bool Demonstration::EndsBy(const QEvent& event) {
  const bool is_key = event.type() == QEvent::KeyPress && bar_.isVisible();
  if (!is_key || static_cast<const QKeyEvent&>(event).key() != Qt::Key_Escape) return false;
  End();
  return true;
}

void Demonstration::GuideBy(int key) {
  switch (key) {
    case Qt::Key_Escape:
      End();
      break;
    case Qt::Key_Space:
      TogglePause();
      break;
    case Qt::Key_Right:
      Step();
      break;
    case Qt::Key_Plus:
      Hurry();
      break;
    default:
      break;
  }
}

}  // namespace quilla::demo

#include "moc_demonstration.cpp"
#include "moc_mark.cpp"
