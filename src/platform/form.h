// A window: the controls that stand on it, its default and cancel buttons, and its closing.
#ifndef QUILLA_PLATFORM_FORM_H_
#define QUILLA_PLATFORM_FORM_H_

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"

namespace quilla {

class Button;

/// The shape of the mouse pointer over a whole form.
enum class FormPointer { kNormal, kBusy };

class Form : public Control {
 public:
  /// A form starts out of sight; showing it is the event loop's work.
  explicit Form(std::string name);
  ~Form() override;

  /// All controls of the form, those in boxes and menus included, in order of creation.
  const std::vector<Control*>& controls() const { return controls_; }
  /// The control of that name, or null. A control array is searched by index as well.
  Control* Find(std::string_view name, int index = kNoIndex) const;

  Button* default_button() const { return default_button_; }
  Button* cancel_button() const { return cancel_button_; }
  void set_default_button(Button* button);
  void set_cancel_button(Button* button) { cancel_button_ = button; }

  /// The control that was last given the focus by code; null if there is none.
  Control* focused() const { return focused_; }
  void SetFocused(Control& control);

  FormPointer pointer() const { return pointer_; }
  void set_pointer(FormPointer pointer) { Change(pointer_, pointer, Property::kPointer); }

  /// The window that this one stands over and is minimised with; null for one of its own.
  const Form* owner = nullptr;

  /// Asked before the window closes by its frame; false keeps it open.
  std::function<bool()> QueryUnload;
  /// The window has closed.
  std::function<void()> Unload;

 private:
  friend class Control;
  void Register(Control& control);
  void Unregister(Control& control);

  std::vector<Control*> controls_;
  Button* default_button_ = nullptr;
  Button* cancel_button_ = nullptr;
  Control* focused_ = nullptr;
  FormPointer pointer_ = FormPointer::kNormal;
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_FORM_H_
