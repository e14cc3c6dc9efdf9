// A pad of the sixteen digit keys 0 to F, and the display that its digits shift through.
#ifndef QUILLA_PROGRAM_DIGIT_KEYS_H_
#define QUILLA_PROGRAM_DIGIT_KEYS_H_

#include <functional>
#include <string>
#include <string_view>

#include "isa/instruction_set.h"
#include "program/key_array.h"

namespace quilla {

class DigitKeys : public KeyArray {
 public:
  /// Makes the key array `name` in `container`; `press` and `hover` hear the value of a key, 0 to
  /// 15.
  DigitKeys(Control* container, const std::string& name, const std::function<void(int)>& press,
            const std::function<void(int)>& hover = nullptr)
      : KeyArray(container, name, kDigitKeyCount, DigitCaption, press, hover) {}
};

/// The display after a digit key: the oldest digit falls out on the left.
std::string ShiftIn(std::string_view display, int digit);

/// A key handler that hands the value of hexadecimal digits, in either case, to `press`.
std::function<void(char)> DigitKeyPress(std::function<void(int)> press);

}  // namespace quilla

#endif  // QUILLA_PROGRAM_DIGIT_KEYS_H_
