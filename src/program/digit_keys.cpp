#include "program/digit_keys.h"

#include <utility>

#include "platform/number_text.h"

namespace quilla {

std::string ShiftIn(std::string_view display, int digit) {
  if (!display.empty()) display.remove_prefix(1);
  return std::string(display).append(DigitCaption(digit));
}

std::function<void(char)> DigitKeyPress(std::function<void(int)> press) {
  return [press = std::move(press)](char key) {
    if (const int digit = DigitValue(key); digit >= 0) press(digit);
  };
}

}  // namespace quilla
