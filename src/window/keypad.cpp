#include "window/keypad.h"

#include <QGridLayout>

#include "window/bindings.h"

namespace quilla {
namespace {

constexpr int kDigitsInARow = 4;
constexpr int kDigitRows = 4;
constexpr int kKeypadGap = 3;
constexpr int kDisplayDigits = 4;
constexpr double kDisplayScale = 2.0;

}  // namespace

int DigitsWidth(const QWidget& widget, int count) {
  return widget.fontMetrics().horizontalAdvance(u'0') * count;
}

QWidget* NewKeyBlock(QWidget* parent) {
  auto* const block = new QWidget(parent);
  block->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  auto* const grid = new QGridLayout(block);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kKeypadGap);
  return block;
}

QWidget* MakeKeypad(FormMirror& mirror, QWidget* parent, std::string_view keys) {
  QWidget* const block = NewKeyBlock(parent);
  auto* const grid = static_cast<QGridLayout*>(block->layout());
  for (int digit = 0; digit < kDigitsInARow * kDigitRows; ++digit) {
    QWidget* const key = MakeKey(mirror, block, keys, digit);
    key->setMinimumWidth(DigitsWidth(*key, kKeyWidthInDigits));
    grid->addWidget(key, kDigitRows - 1 - digit / kDigitsInARow, digit % kDigitsInARow);
  }
  return block;
}

QWidget* MakeBigDigits(FormMirror& mirror, QWidget* parent, std::string_view label) {
  QWidget* const display = MakeBold(mirror, parent, label);
  QFont font = display->font();
  font.setPointSizeF(font.pointSizeF() * kDisplayScale);
  display->setFont(font);
  display->setMinimumWidth(DigitsWidth(*display, kDisplayDigits));
  return display;
}

}  // namespace quilla
