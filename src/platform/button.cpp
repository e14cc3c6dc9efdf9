#include "platform/button.h"

#include <utility>

#include "platform/dispatch.h"

namespace quilla {

void Box::PressKey(char character) { Dispatch(KeyPress, character); }

Button::Button(Control* container, std::string name, std::string caption, int index)
    : Control(container, std::move(name), index) {
  set_caption(std::move(caption));
}

void Button::MakeDefault() {
  if (form() != nullptr) form()->set_default_button(this);
}

void Button::Press() { Dispatch(MouseDown); }

void Button::Release() { Dispatch(MouseUp); }

void Button::Choose() { Dispatch(Click); }

void Button::PressKey(char character) { Dispatch(KeyPress, character); }

Option::Option(Control* container, std::string name, std::string caption, int index)
    : Control(container, std::move(name), index) {
  set_caption(std::move(caption));
}

void Option::set_checked(bool checked) {
  if (checked && form() != nullptr) {
    for (Control* control : form()->controls()) {
      auto* const other = dynamic_cast<Option*>(control);
      if (other != nullptr && other != this && other->container() == container()) {
        other->set_checked(false);
      }
    }
  }
  Change(checked_, checked, Property::kChecked);
}

void Option::Choose() {
  set_checked(true);
  Dispatch(Click);
}

Label::Label(Control* container, std::string name, std::string caption, int index)
    : Control(container, std::move(name), index) {
  set_caption(std::move(caption));
}

void Label::Choose() { Dispatch(Click); }

MenuEntry::MenuEntry(Control* container, std::string name, std::string caption,
                     std::string shortcut, int index)
    : Control(container, std::move(name), index), shortcut_(std::move(shortcut)) {
  set_caption(std::move(caption));
}

void MenuEntry::Choose() { Dispatch(Click); }

}  // namespace quilla
