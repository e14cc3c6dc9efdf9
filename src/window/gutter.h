// The numbers of a table's rows, in a quiet column on its left: those that messages call lines.
#ifndef QUILLA_WINDOW_GUTTER_H_
#define QUILLA_WINDOW_GUTTER_H_

#include <QFont>
#include <QHeaderView>

namespace quilla {

class Gutter : public QHeaderView {
  Q_OBJECT

 public:
  explicit Gutter(QWidget* parent);

  QSize sizeHint() const override;
  void setModel(QAbstractItemModel* model) override;

 protected:
  void paintSection(QPainter* painter, const QRect& area, int row) const override;

 private:
  /// The font of the numbers, bold for that of the cursor's row.
  QFont Letters(bool bold) const;
  /// Repaints those of the rows that are on view.
  void RepaintRows(int first, int last);
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_GUTTER_H_
