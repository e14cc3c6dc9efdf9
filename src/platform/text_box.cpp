#include "platform/text_box.h"

#include <utility>

#include "platform/characters.h"

namespace quilla {

TextBox::TextBox(Control* container, std::string name, int max_length)
    : Control(container, std::move(name)), max_length_(max_length) {}

void TextBox::set_text(std::string text) {
  if (max_length_ > 0) text.resize(PrefixLength(text, max_length_));
  if (Change(text_, std::move(text), Property::kText) && TextChange) TextChange();
}

void TextBox::Type(std::string_view character) { set_text(text_ + std::string(character)); }

}  // namespace quilla
