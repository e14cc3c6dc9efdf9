#include "window/key_button.h"

#include <QPainter>
#include <algorithm>

namespace quilla {
namespace {

constexpr int kSidePadding = 7;
constexpr int kTopPadding = 4;
constexpr int kFewestDigits = 2;
constexpr double kKeyFocusWidth = 2;
constexpr double kFocusRadius = 3;

}  // namespace

void PanelButton::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Highlight), kKeyFocusWidth));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kFocusRadius, kFocusRadius);
}

KeyButton::KeyButton(QWidget* parent) : PanelButton(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  setFocusPolicy(Qt::NoFocus);
}

QSize KeyButton::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const int width =
      std::max(metrics.horizontalAdvance(text()), kFewestDigits * metrics.horizontalAdvance(u'0'));
  return {width + 2 * kSidePadding, std::max(metrics.height() + 2 * kTopPadding, kLeastKeyHeight)};
}

}  // namespace quilla
