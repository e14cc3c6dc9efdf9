// Sixteen digit keys in the order of a trainer's keyboard, and the value that they make.
#ifndef QUILLA_WINDOW_KEYPAD_H_
#define QUILLA_WINDOW_KEYPAD_H_

#include <QWidget>
#include <string_view>

#include "window/form_mirror.h"

namespace quilla {

/// Makes the keys of a control array as a block in `parent`, no larger than they need.
QWidget* MakeKeypad(FormMirror& mirror, QWidget* parent, std::string_view keys);

/// Makes a label with large digits.
QWidget* MakeBigDigits(FormMirror& mirror, QWidget* parent, std::string_view label);

/// An empty block for keys, laid out as a grid.
QWidget* NewKeyBlock(QWidget* parent);

/// The width of so many digits in the font of a widget.
int DigitsWidth(const QWidget& widget, int count);

/// The least width of a key that stands alone, in digits.
inline constexpr int kKeyWidthInDigits = 7;

}  // namespace quilla

#endif  // QUILLA_WINDOW_KEYPAD_H_
