#include "window/splash_window.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

#include "window/bindings.h"

namespace quilla {
namespace {

// Lengths in heights of a text line.
constexpr double kWidth = 26;
constexpr double kHeight = 15;
constexpr double kTextHeight = 4.6;
constexpr double kChipLeft = 4;
constexpr double kChipTop = 2.4;
constexpr double kChipBottom = 8.6;
constexpr double kPinLength = 0.8;
constexpr double kPinWidth = 0.4;
constexpr double kCorner = 0.35;
constexpr double kNotchRadius = 0.7;
constexpr double kNameScale = 2.8;
constexpr int kPinsOnASide = 20;

const QColor kBoard(0x16, 0x3a, 0x33);
const QColor kTrack(0x24, 0x5a, 0x4e);
const QColor kPlastic(0x22, 0x24, 0x28);
const QColor kPlasticEdge(0x3a, 0x3d, 0x44);
const QColor kMetal(0xc4, 0xc9, 0xcc);
const QColor kPrint(0xf2, 0xef, 0xe6);

void DrawTracks(QPainter& painter, const QRectF& chip, double unit, double width) {
  painter.setPen(QPen(kTrack, unit * 0.14));
  for (int pin = 0; pin < kPinsOnASide; pin += 2) {
    const double x = chip.left() + (pin + 0.5) * chip.width() / kPinsOnASide;
    const double slant = (x - width / 2) * 0.35;
    painter.drawLine(QPointF(x, chip.top()), QPointF(x + slant, 0));
    painter.drawLine(QPointF(x, chip.bottom()), QPointF(x + slant, chip.bottom() + unit * 3));
  }
}

void DrawChip(QPainter& painter, const QRectF& chip, double unit) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(kMetal);
  for (int pin = 0; pin < kPinsOnASide; ++pin) {
    const double x = chip.left() + (pin + 0.5) * chip.width() / kPinsOnASide - unit * kPinWidth / 2;
    const QSizeF size(unit * kPinWidth, unit * kPinLength);
    painter.drawRect(QRectF(QPointF(x, chip.top() - size.height()), size));
    painter.drawRect(QRectF(QPointF(x, chip.bottom()), size));
  }
  painter.setBrush(kPlastic);
  painter.setPen(QPen(kPlasticEdge, unit * 0.12));
  painter.drawRoundedRect(chip, unit * kCorner, unit * kCorner);
  const double radius = unit * kNotchRadius;
  painter.setBrush(kBoard);
  painter.drawChord(
      QRectF(chip.left() - radius, chip.center().y() - radius, 2 * radius, 2 * radius), -90 * 16,
      180 * 16);
}

// In the letters of the first label, grown: another size would be another font to load.
void DrawName(QPainter& painter, const QRectF& chip) {
  QFont font = painter.font();
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(kPrint);
  painter.translate(chip.center());
  painter.scale(kNameScale, kNameScale);
  const QSizeF size = chip.size() / kNameScale;
  painter.drawText(QRectF({-size.width() / 2, -size.height() / 2}, size), Qt::AlignCenter,
                   "Quilla");
}

}  // namespace

SplashWindow::SplashWindow(Gate& gate, EventLoop& event_loop, Form& form)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      mirror_(gate, event_loop, form, *this) {
  const double unit = fontMetrics().height();
  setFixedSize(qRound(kWidth * unit), qRound(kHeight * unit));
  QPalette palette;
  palette.setColor(QPalette::WindowText, kPrint);
  auto* const column = new QVBoxLayout(this);
  column->addStretch();
  for (QWidget* label :
       {MakeBold(mirror_, this, "DescriptionLabel"), Make(mirror_, this, "VersionLabel")}) {
    if (label == nullptr) continue;
    label->setPalette(palette);
    column->addWidget(label, 0, Qt::AlignHCenter);
  }
  column->addSpacing(qRound(unit * 0.6));
  move(screen()->availableGeometry().center() - rect().center());
}

void SplashWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), kBoard);
  const double unit = fontMetrics().height();
  const QRectF chip(unit * kChipLeft, unit * kChipTop, width() - 2 * unit * kChipLeft,
                    unit * (kChipBottom - kChipTop));
  DrawTracks(painter, chip, unit, width());
  painter.fillRect(QRectF(0, height() - unit * kTextHeight, width(), unit * kTextHeight), kPlastic);
  DrawChip(painter, chip, unit);
  DrawName(painter, chip);
  is_painted_ = true;
  Q_EMIT Painted();
}

}  // namespace quilla

#include "moc_splash_window.cpp"
