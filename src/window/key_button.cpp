#include "window/key_button.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>

namespace quilla {
namespace {

constexpr int kSidePadding = 7;
constexpr int kTopPadding = 4;
// What a finger or an unsteady hand still meets.
constexpr int kLeastKeyHeight = 24;
constexpr int kFewestDigits = 2;
constexpr double kKeyFocusWidth = 2;
constexpr double kFocusRadius = 3;

}  // namespace

int KeyHeight(const QFontMetrics& letters) {
  return std::max(letters.height() + 2 * kTopPadding, kLeastKeyHeight);
}

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
  if (hint_.isValid() && hinted_ == text()) return hint_;
  hinted_ = text();
  const QFontMetrics metrics = fontMetrics();
  const int width =
      std::max(metrics.horizontalAdvance(hinted_), kFewestDigits * metrics.horizontalAdvance(u'0'));
  hint_ = {width + 2 * kSidePadding, KeyHeight(metrics)};
  return hint_;
}

void KeyButton::changeEvent(QEvent* event) {
  PanelButton::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) hint_ = QSize();
}

}  // namespace quilla

#include "moc_key_button.cpp"
