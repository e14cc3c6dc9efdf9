#include "program/key_array.h"

namespace quilla {

KeyArray::KeyArray(Control* container, const std::string& name, int count,
                   const std::function<std::string_view(int)>& caption,
                   const std::function<void(int)>& press, const std::function<void(int)>& hover) {
  for (int index = 0; index < count; ++index) {
    keys_.push_back(std::make_unique<Button>(container, name, std::string(caption(index)), index));
    keys_.back()->Click = [press, index] { press(index); };
    if (hover) keys_.back()->MouseMove = [hover, index] { hover(index); };
  }
}

}  // namespace quilla
