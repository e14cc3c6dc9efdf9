#include "platform/control.h"

#include <utility>

#include "platform/dispatch.h"
#include "platform/form.h"

namespace quilla {

Control::Control(Control* container, std::string name, int index)
    : name_(std::move(name)), index_(index) {
  if (container != nullptr) PlaceIn(container);
}

Control::~Control() {
  if (Form* home = form(); home != nullptr) home->Unregister(*this);
}

Form* Control::form() const {
  const Control* control = this;
  while (control->container_ != nullptr) control = control->container_;
  // A constant control may well stand on a form that changes.
  return dynamic_cast<Form*>(
      const_cast<Control*>(control));  // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

void Control::PlaceIn(Control* container) {
  Form* const old_form = form();
  container_ = container;
  Form* const new_form = form();
  if (old_form == new_form) return;
  if (old_form != nullptr) old_form->Unregister(*this);
  if (new_form != nullptr) new_form->Register(*this);
}

void Control::set_caption(std::string caption) {
  Change(caption_, std::move(caption), Property::kCaption);
}

void Control::set_enabled(bool enabled) { Change(enabled_, enabled, Property::kEnabled); }

void Control::set_visible(bool visible) { Change(visible_, visible, Property::kVisible); }

bool Control::IsEnabled() const {
  return enabled_ && (container_ == nullptr || container_->IsEnabled());
}

bool Control::IsVisible() const {
  return visible_ && (container_ == nullptr || container_->IsVisible());
}

void Control::Hover() const { Dispatch(MouseMove); }

void Control::SetFocus() {
  if (Form* home = form(); home != nullptr) home->SetFocused(*this);
}

}  // namespace quilla
