// The room that a screen has for a window and its frame.
#ifndef QUILLA_WINDOW_SCREEN_ROOM_H_
#define QUILLA_WINDOW_SCREEN_ROOM_H_

#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace quilla {

/// The size in pixels of the largest window that its screen can show with a frame around it.
inline QSize RoomOnScreen(const QWidget& window) {
  const int border = window.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
  const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
  return window.screen()->availableSize() - QSize(2 * border, 2 * border + title);
}

}  // namespace quilla

#endif  // QUILLA_WINDOW_SCREEN_ROOM_H_
