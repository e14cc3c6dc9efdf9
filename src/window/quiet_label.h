// A line that explains what stands beside it, and stands back behind it.
#ifndef QUILLA_WINDOW_QUIET_LABEL_H_
#define QUILLA_WINDOW_QUIET_LABEL_H_

#include <QLabel>

namespace quilla {

class QuietLabel : public QLabel {
  Q_OBJECT

 public:
  QuietLabel(const QString& text, QWidget* parent);
  /// Has the text cut off where there is no room, rather than widen its window.
  void MayBeCut() { setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Recolor();
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_QUIET_LABEL_H_
