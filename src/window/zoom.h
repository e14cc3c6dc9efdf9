// The size of letters in tables and on keys, for whoever reads them from the back of a room.
#ifndef QUILLA_WINDOW_ZOOM_H_
#define QUILLA_WINDOW_ZOOM_H_

#include <QWidget>

namespace quilla {

/// Has Ctrl with +, -, 0 or the wheel, in this window, make the letters of the tables and keys in
/// all windows larger, smaller, or as they were. Keys grow as long as their windows have room for
/// them.
void AddZoom(QWidget& window);

}  // namespace quilla

#endif  // QUILLA_WINDOW_ZOOM_H_
