#include "platform/form.h"

#include <algorithm>
#include <utility>

#include "platform/button.h"

namespace quilla {

Form::Form(std::string name) : Control(nullptr, std::move(name)) { set_visible(false); }

Form::~Form() {
  for (Control* control : controls_) control->container_ = nullptr;
}

Control* Form::Find(std::string_view name, int index) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* control) {
    return control->name() == name && control->index() == index;
  });
  return found == controls_.end() ? nullptr : *found;
}

void Form::set_default_button(Button* button) {
  Change(default_button_, button, Property::kDefault);
}

void Form::SetFocused(Control& control) {
  focused_ = &control;
  Notify(Property::kFocus);
}

void Form::Register(Control& control) { controls_.push_back(&control); }

void Form::Unregister(Control& control) {
  std::erase(controls_, &control);
  const auto stands_in_it = [&](const Control* other) { return other->container_ == &control; };
  for (auto child = std::find_if(controls_.begin(), controls_.end(), stands_in_it);
       child != controls_.end();
       child = std::find_if(controls_.begin(), controls_.end(), stands_in_it)) {
    Control& orphan = **child;
    orphan.container_ = nullptr;
    Unregister(orphan);
  }
  if (focused_ == &control) focused_ = nullptr;
  if (default_button_ == &control) default_button_ = nullptr;
  if (cancel_button_ == &control) cancel_button_ = nullptr;
}

}  // namespace quilla
