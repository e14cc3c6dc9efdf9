// The splash: a drawn chip with the name of the program, and the two lines of the form under it.
#ifndef QUILLA_WINDOW_SPLASH_WINDOW_H_
#define QUILLA_WINDOW_SPLASH_WINDOW_H_

#include <QWidget>

#include "window/form_mirror.h"

namespace quilla {

class SplashWindow : public QWidget {
  Q_OBJECT

 public:
  SplashWindow(Gate& gate, EventLoop& event_loop, Form& form);

  bool is_painted() const { return is_painted_; }

 Q_SIGNALS:
  /// The splash has been painted.
  void Painted();
  /// The splash is gone.
  void Gone();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void hideEvent(QHideEvent* /*event*/) override { Q_EMIT Gone(); }

 private:
  FormMirror mirror_;
  bool is_painted_ = false;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_SPLASH_WINDOW_H_
