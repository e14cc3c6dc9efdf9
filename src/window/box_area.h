// The one place where the input boxes of a form open. Its height never changes, so that nothing
// jumps; the box that was opened last lies on top. A box is built when it first comes into sight.
#ifndef QUILLA_WINDOW_BOX_AREA_H_
#define QUILLA_WINDOW_BOX_AREA_H_

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "platform/button.h"

namespace quilla {

class BoxArea : public QWidget {
  Q_OBJECT
  Q_DISABLE_COPY_MOVE(BoxArea)

 public:
  /// Builds the widget of a box as a child of the area and binds it.
  using Builder = std::function<QWidget*(QWidget* parent)>;

  explicit BoxArea(QWidget* parent);
  ~BoxArea() override;

  /// Takes a box in, and builds it if it is on view.
  void Add(Box& box, Builder builder);
  /// Takes in the widget of a box that is built and bound already.
  void Place(QWidget& page);
  /// The box on top, or null if none is on view.
  QWidget* top() const;

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Slot;

  std::vector<std::unique_ptr<Slot>> slots_;
  std::vector<QWidget*> pages_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_BOX_AREA_H_
