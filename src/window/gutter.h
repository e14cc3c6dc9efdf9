// The numbers of a table's rows, in a quiet column on its left: those that messages call lines.
#ifndef QUILLA_WINDOW_GUTTER_H_
#define QUILLA_WINDOW_GUTTER_H_

#include <QHeaderView>

namespace quilla {

class Gutter : public QHeaderView {
  Q_OBJECT

 public:
  explicit Gutter(QWidget* parent);

  QSize sizeHint() const override;

 protected:
  void paintSection(QPainter* painter, const QRect& area, int row) const override;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_GUTTER_H_
