#include "window/box_page.h"

#include <QApplication>
#include <QPainter>

namespace quilla {
namespace {

constexpr int kFrameDistance = 3;
constexpr double kFrameWidth = 2;
constexpr double kFrameRadius = 4;

}  // namespace

BoxPage::BoxPage(QWidget* parent) : QWidget(parent) {
  focus_watch_ = connect(qApp, &QApplication::focusChanged, this, [this] {
    if (keys_ != nullptr) update();
  });
}

// The focus changes once more while the widget below this class goes.
BoxPage::~BoxPage() { disconnect(focus_watch_); }

bool BoxPage::KeysHaveFocus() const {
  const QWidget* const focus = QApplication::focusWidget();
  if (focus == nullptr || keys_ == nullptr) return false;
  return focus == this || (focus->parentWidget() == this && !rect().intersects(focus->geometry()));
}

void BoxPage::paintEvent(QPaintEvent* /*event*/) {
  if (!KeysHaveFocus()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Highlight), kFrameWidth));
  const QRectF frame =
      keys_->geometry().adjusted(-kFrameDistance, -kFrameDistance, kFrameDistance, kFrameDistance);
  painter.drawRoundedRect(frame, kFrameRadius, kFrameRadius);
}

}  // namespace quilla

#include "moc_box_page.cpp"
