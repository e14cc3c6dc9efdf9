#include "window/quiet_label.h"

#include <QEvent>

#include "window/colors.h"

namespace quilla {

QuietLabel::QuietLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
  setTextFormat(Qt::PlainText);
  Recolor();
}

void QuietLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::StyleChange) {
    Recolor();
  }
}

void QuietLabel::Recolor() {
  QPalette quiet;
  quiet.setColor(QPalette::WindowText, QuietText(quiet));
  setPalette(quiet);
}

}  // namespace quilla

#include "moc_quiet_label.cpp"
