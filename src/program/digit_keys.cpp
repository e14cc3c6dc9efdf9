#include "program/digit_keys.h"

#include <utility>

#include "isa/instruction_set.h"
#include "platform/number_text.h"

namespace quilla {

DigitKeys::DigitKeys(Control* container, const std::string& name,
                     const std::function<void(int)>& press) {
  for (int digit = 0; digit < kDigitKeyCount; ++digit) {
    keys_.push_back(
        std::make_unique<Button>(container, name, std::string(DigitCaption(digit)), digit));
    keys_.back()->Click = [press, digit] { press(digit); };
  }
}

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
