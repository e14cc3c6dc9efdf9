// Buttons that show clearly when they have the focus: the push button of the panel, and the key,
// which is no wider than its caption needs, so that many of them fit side by side.
#ifndef QUILLA_WINDOW_KEY_BUTTON_H_
#define QUILLA_WINDOW_KEY_BUTTON_H_

#include <QFontMetrics>
#include <QPushButton>

namespace quilla {

/// How high a key is whose caption is in these letters, in pixels.
int KeyHeight(const QFontMetrics& letters);

class PanelButton : public QPushButton {
  Q_OBJECT

 public:
  using QPushButton::QPushButton;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

class KeyButton : public PanelButton {
  Q_OBJECT

 public:
  explicit KeyButton(QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  // The hint, for which the layouts ask many times, and the caption that it was made for.
  mutable QSize hint_;
  mutable QString hinted_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_KEY_BUTTON_H_
