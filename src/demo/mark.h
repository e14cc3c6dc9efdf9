// The mark around what a demonstration presses next.
#ifndef QUILLA_DEMO_MARK_H_
#define QUILLA_DEMO_MARK_H_

#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QWidget>

namespace quilla::demo {

class Mark : public QWidget {
  Q_OBJECT

 public:
  /// Stands around a place of a widget until it is deleted.
  Mark(QWidget& widget, const QRect& place) : QWidget(widget.window()) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    const QPoint corner = widget.mapTo(widget.window(), place.topLeft());
    setGeometry(QRect(corner, place.size()).adjusted(-kGap, -kGap, kGap, kGap));
    raise();
    show();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(kColor), kWidth));
    painter.drawRoundedRect(rect().adjusted(kWidth, kWidth, -kWidth, -kWidth), kGap, kGap);
  }

 private:
  static constexpr int kGap = 5;
  static constexpr int kWidth = 3;
  static constexpr QRgb kColor = 0xFFE07000;
};

}  // namespace quilla::demo

#endif  // QUILLA_DEMO_MARK_H_
