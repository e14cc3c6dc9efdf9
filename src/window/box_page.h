// The widget of an input box. A box, or a button of it that is out of sight, may have the focus;
// a frame around the keys then shows that they can be typed.
#ifndef QUILLA_WINDOW_BOX_PAGE_H_
#define QUILLA_WINDOW_BOX_PAGE_H_

#include <QWidget>

namespace quilla {

class BoxPage : public QWidget {
  Q_OBJECT
  Q_DISABLE_COPY_MOVE(BoxPage)

 public:
  explicit BoxPage(QWidget* parent);
  ~BoxPage() override;

  /// The keys that typing presses; they stand in the page.
  void set_keys(QWidget* keys) { keys_ = keys; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool KeysHaveFocus() const;

  QWidget* keys_ = nullptr;
  QMetaObject::Connection focus_watch_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_BOX_PAGE_H_
