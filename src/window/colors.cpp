#include "window/colors.h"

#include <algorithm>
#include <cmath>

namespace quilla {
namespace {

// The contrast that small text needs to be read without strain.
constexpr double kReadableContrast = 4.5;
constexpr int kMostSteps = 12;

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
         0.0722 * Linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double dark = std::min(Luminance(one), Luminance(other));
  const double light = std::max(Luminance(one), Luminance(other));
  return (light + 0.05) / (dark + 0.05);
}

}  // namespace

QColor FromBlueGreenRed(unsigned value) {
  constexpr unsigned kByte = 0xFF;
  return {static_cast<int>(value & kByte), static_cast<int>(value >> 8 & kByte),
          static_cast<int>(value >> 16 & kByte)};
}

QColor TextOn(const QColor& background) {
  const QColor black(Qt::black);
  const QColor white(Qt::white);
  return Contrast(black, background) >= Contrast(white, background) ? black : white;
}

QColor ReadableOn(const QColor& background, QColor color) {
  const QColor target = TextOn(background);
  for (int step = 0; step < kMostSteps && Contrast(color, background) < kReadableContrast; ++step) {
    color = QColor((color.red() * 4 + target.red()) / 5, (color.green() * 4 + target.green()) / 5,
                   (color.blue() * 4 + target.blue()) / 5);
  }
  return color;
}

}  // namespace quilla
