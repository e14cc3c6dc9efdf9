#include "window/colors.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "program/vocabulary.h"

namespace quilla {
namespace {

// The contrast that small text needs to be read without strain.
constexpr double kReadableContrast = 4.5;
constexpr int kMostSteps = 12;

constexpr double kCursorRowTint = 0.16;
constexpr double kQuietTint = 0.7;
constexpr double kLineTint = 0.22;
constexpr double kDarkestLight = 0.18;  // the luminance below which a palette is a dark one

struct Shades {
  CellColor color;
  QRgb light = 0;
  QRgb dark = 0;
  const char* meaning = "";
};

constexpr std::array kShades = {
    Shades{kPickedColor, 0x00FF00, 0x00C040, "selected"},
    Shades{kCandidateColor, 0xC00000, 0xC00000, "can be selected"},
    Shades{kFoundColor, 0x0000FF, 0x3050FF, "found"},
    Shades{kCommentColor, 0xC0FFC0, 0x1E5428, "its comment is edited"},
    Shades{kOriginColor, 0xE0E0E0, 0x484848, ""},
};

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

QColor Mixed(const QColor& ground, const QColor& color, double part) {
  const auto mix = [part](int from, int to) { return from + qRound((to - from) * part); };
  return {mix(ground.red(), color.red()), mix(ground.green(), color.green()),
          mix(ground.blue(), color.blue())};
}

}  // namespace

QColor FromBlueGreenRed(unsigned value) {
  constexpr unsigned kByte = 0xFF;
  return {static_cast<int>(value & kByte), static_cast<int>(value >> 8 & kByte),
          static_cast<int>(value >> 16 & kByte)};
}

QColor GroundOf(CellColor color, const QPalette& palette) {
  const bool dark = Luminance(palette.color(QPalette::Base)) < kDarkestLight;
  for (const Shades& shades : kShades) {
    if (shades.color == color) return QColor::fromRgb(dark ? shades.dark : shades.light);
  }
  return FromBlueGreenRed(static_cast<unsigned>(color.value()));
}

QColor SelectedGround(const QPalette& palette) {
  return ReadableOn(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight));
}

QColor CursorRowGround(const QPalette& palette) {
  return Mixed(palette.color(QPalette::Base), palette.color(QPalette::Highlight), kCursorRowTint);
}

QColor LineBetweenCells(const QPalette& palette) {
  return Mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), kLineTint);
}

QColor QuietText(const QPalette& palette) {
  const QColor ground = palette.color(QPalette::Window);
  return ReadableOn(ground, Mixed(ground, palette.color(QPalette::WindowText), kQuietTint));
}

QString MeaningOf(CellColor color) {
  if (color == kSelectionColor) return "cursor";
  const auto* const shades = std::find_if(kShades.begin(), kShades.end(),
                                          [&](const Shades& each) { return each.color == color; });
  return shades == kShades.end() ? QString() : QString(shades->meaning);
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
