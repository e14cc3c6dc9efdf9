// A demonstration: a script of the robot played in the windows of the program, act by act, its
// comments shown as captions. It begins with a new file, and can be paused, stepped, hurried and
// stopped; afterwards the user goes on from where it stands.
#ifndef QUILLA_DEMO_DEMONSTRATION_H_
#define QUILLA_DEMO_DEMONSTRATION_H_

#include <QEventLoop>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <deque>
#include <memory>
#include <optional>
#include <sstream>
#include <string>

#include "demo/caption_bar.h"
#include "demo/window_hands.h"
#include "panel/quilla.h"
#include "robot/commands.h"
#include "window/qt_outside.h"

namespace quilla::demo {

class Demonstration : public QObject, private WindowHands, private robot::Surroundings {
  Q_OBJECT

 public:
  /// The time between two acts at the usual speed.
  static constexpr int kPaceMs = 900;

  /// `script` is the text of a script. Its file dialogs get the paths that it queues, inside a
  /// folder that goes with the demonstration; a box that it queues no answer for is the user's.
  Demonstration(Quilla& quilla, QtOutside& outside, const QString& script);

  /// Plays from the first line. Until the end the serial port leads to a trainer board of its own.
  void Begin();
  void Stop();
  /// Stops, and takes the caption away.
  void End();
  /// Whether it plays, or an act of it still waits for a dialog that it opened.
  bool is_under_way() const { return !over_ || depth_ > 0; }
  bool is_over() const { return over_; }
  void set_pace(int milliseconds) { pace_ms_ = milliseconds; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // The hands.
  QWidget& WindowOf(const Form& form) const override {
    return *outside_.event_loop().WindowOf(form);
  }
  void Aim(QWidget& widget, const QRect& place) override;
  void AimKey(QWidget& widget) override;
  void Choose(QAction& action) override;

  // The surroundings. The port of the machine is left alone, so it has no state to set, and it is
  // the board that sends.
  void QueueAnswer(BoxAnswer answer) override { answers_.push_back(answer); }
  void QueuePath(std::optional<std::string> path) override;
  void SetPortState(int /*number*/, robot::PortState /*state*/) override {}
  void Feed(const std::string& /*bytes*/) override {}
  void Pass(int milliseconds) override;
  void PassAll() override;
  Form* modal() const override;
  Form* active() const override;
  void Use(Form& form) override { active_ = &form; }

  QWidget& FrontWindow() const;
  /// The next act, caption or answer is due.
  void Tick();
  void PlayNext();
  void PlayCommand(robot::Words command);
  bool ShowCaption();
  /// Answers the box or the file dialog that stands open; false if there is none.
  bool AnswerBox();
  void Answer(QMessageBox& box);
  void Answer(QFileDialog& dialog);
  /// Waits for the next tick. Fails with Stopped when there is none.
  void Await(int milliseconds);
  void Schedule(int milliseconds);
  void TogglePause();
  void Step();
  void Hurry();
  void GuideBy(int key);
  bool EndsBy(const QEvent& event);

  Quilla& quilla_;
  QtOutside& outside_;
  CaptionBar bar_;
  QTimer timer_;
  QTemporaryDir folder_;
  QStringList lines_;
  std::deque<robot::Words> line_;
  std::ostringstream transcript_;
  robot::Commands commands_{transcript_, *this, quilla_, *this};
  std::deque<BoxAnswer> answers_;
  std::deque<std::optional<std::string>> paths_;
  QEventLoop* act_ = nullptr;  // of the act that waits for its turn
  QPointer<QWidget> seen_box_;
  Form* active_ = nullptr;
  int pace_ms_ = kPaceMs;
  int speed_ = 1;
  int depth_ = 0;
  bool paused_ = false;
  bool over_ = false;
};

}  // namespace quilla::demo

#endif  // QUILLA_DEMO_DEMONSTRATION_H_
