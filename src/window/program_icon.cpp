#include "window/program_icon.h"

#include <QPainter>
#include <QPixmap>

namespace quilla {
namespace {

// Lengths in sixteenths of the icon.
constexpr double kUnits = 16;
constexpr QRectF kChip(1.5, 3, 13, 10);
constexpr double kIconCorner = 1.5;
constexpr double kIconPinWidth = 1.5;
constexpr double kPinDistance = 3;
constexpr int kPins = 4;
constexpr double kLetterHeight = 9;

const QColor kIconChip(0x1f, 0x6b, 0x57);
const QColor kIconPin(0x8f, 0x99, 0x9e);
const QColor kIconLetter(0xf2, 0xef, 0xe6);

QPixmap Draw(int side) {
  QPixmap picture(side, side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(side / kUnits, side / kUnits);
  painter.setPen(Qt::NoPen);
  for (int pin = 0; pin < kPins; ++pin) {
    const double middle = kUnits / 2 + (pin - (kPins - 1) / 2.0) * kPinDistance;
    painter.fillRect(QRectF(middle - kIconPinWidth / 2, 1, kIconPinWidth, kUnits - 2), kIconPin);
  }
  painter.setBrush(kIconChip);
  painter.drawRoundedRect(kChip, kIconCorner, kIconCorner);
  QFont font = painter.font();
  font.setBold(true);
  font.setPixelSize(qRound(kLetterHeight));
  painter.setFont(font);
  painter.setPen(kIconLetter);
  painter.drawText(kChip, Qt::AlignCenter, "Q");
  return picture;
}

}  // namespace

QIcon ProgramIcon() {
  QIcon icon;
  for (const int side : {16, 32, 48, 128}) icon.addPixmap(Draw(side));
  return icon;
}

}  // namespace quilla
