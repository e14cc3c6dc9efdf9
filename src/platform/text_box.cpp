#include "platform/text_box.h"

#include <utility>

#include "platform/characters.h"
#include "platform/dispatch.h"

namespace quilla {

TextBox::TextBox(Control* container, std::string name, int max_length)
    : Control(container, std::move(name)), max_length_(max_length) {}

void TextBox::set_text(std::string text) {
  if (max_length_ > 0) text.resize(PrefixLength(text, max_length_));
  if (Change(text_, std::move(text), Property::kText) && TextChange) TextChange();
}

void TextBox::Edit(std::string text) {
  CarryOut([&] { set_text(std::move(text)); });
}

}  // namespace quilla
