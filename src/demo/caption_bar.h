// The bar over the program while a demonstration plays: its caption, and the keys that guide it.
#ifndef QUILLA_DEMO_CAPTION_BAR_H_
#define QUILLA_DEMO_CAPTION_BAR_H_

#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace quilla::demo {

class CaptionBar : public QFrame {
  Q_OBJECT

 public:
  CaptionBar();

  void SetCaption(const QString& text);
  void ShowPaused(bool paused);
  void ShowSpeed(int speed);
  /// Leaves only the key that takes the bar away.
  void ShowOver();
  /// Stands below a window; where there is no room, over its lower right, above the panel's keys.
  void StandOver(QWidget& window);

 Q_SIGNALS:
  void PauseClicked();
  void StepClicked();
  void FasterClicked();
  void StopClicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QPushButton* MakeButton(const QString& text);

  QLabel* const caption_ = new QLabel(this);
  QPushButton* const pause_ = MakeButton(tr("Pause"));
  QPushButton* const step_ = MakeButton(tr("One step"));
  QPushButton* const faster_ = MakeButton(tr("Faster"));
  QPushButton* const stop_ = MakeButton(tr("Stop"));
};

}  // namespace quilla::demo

#endif  // QUILLA_DEMO_CAPTION_BAR_H_
