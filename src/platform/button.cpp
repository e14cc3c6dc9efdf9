#include "platform/button.h"

#include <utility>

#include "platform/failure.h"

namespace quilla {

Button::Button(Control* container, std::string name, std::string caption, int index)
    : Control(container, std::move(name), index) {
  set_caption(std::move(caption));
}

void Button::MakeDefault() {
  if (form() != nullptr) form()->set_default_button(this);
}

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

MenuEntry::MenuEntry(Control* container, std::string name, std::string caption,
                     std::string shortcut, int index)
    : Control(container, std::move(name), index), shortcut_(std::move(shortcut)) {
  set_caption(std::move(caption));
}

}  // namespace quilla
