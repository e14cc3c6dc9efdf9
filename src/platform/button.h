// The controls that are pressed: boxes that take keys, push buttons, options, labels, menu entries.
#ifndef QUILLA_PLATFORM_BUTTON_H_
#define QUILLA_PLATFORM_BUTTON_H_

#include <functional>
#include <string>

#include "platform/control.h"
#include "platform/form.h"

namespace quilla {

/// A frame around controls. It can hold the focus and take keys itself.
class Box : public Control {
 public:
  using Control::Control;

  void PressKey(char character) override;
  bool TakesKeys() const override { return KeyPress != nullptr; }

  /// A key with a character was pressed while the box had the focus.
  std::function<void(char)> KeyPress;
};

class Button : public Control {
 public:
  Button(Control* container, std::string name, std::string caption, int index = kNoIndex);

  /// Makes this the button that Enter presses, wherever the focus is.
  void MakeDefault();

  void Press() override;
  void Release() override;
  void Choose() override;
  void PressKey(char character) override;
  bool TakesKeys() const override { return KeyPress != nullptr; }

  std::function<void()> Click;
  std::function<void()> MouseDown;
  std::function<void()> MouseUp;
  /// A key with a character was pressed while the button had the focus.
  std::function<void(char)> KeyPress;
};

/// A radio button: setting one clears the others of its container.
class Option : public Control {
 public:
  Option(Control* container, std::string name, std::string caption, int index = kNoIndex);

  bool checked() const { return checked_; }
  /// Sets or clears the option; no handler runs.
  void set_checked(bool checked);
  /// Sets the option, set already or not, and runs its handler.
  void Choose() override;

  std::function<void()> Click;

 private:
  bool checked_ = false;
};

/// A text that the user reads, and may click if it has a handler for that.
class Label : public Control {
 public:
  Label(Control* container, std::string name, std::string caption = {}, int index = kNoIndex);

  /// The colour of the text, blue-green-red; black where none was set.
  unsigned color() const { return color_; }
  void set_color(unsigned color) { Change(color_, color, Property::kColor); }

  void Choose() override;

  std::function<void()> Click;

 private:
  unsigned color_ = 0;
};

/// An entry of the menu bar, a menu with entries under it, or a separator.
class MenuEntry : public Control {
 public:
  /// The caption of a separator line.
  static constexpr const char* kSeparator = "-";

  MenuEntry(Control* container, std::string name, std::string caption, std::string shortcut = {},
            int index = kNoIndex);

  /// The keys that choose the entry, such as "Ctrl+F5"; empty for none.
  const std::string& shortcut() const { return shortcut_; }
  bool is_separator() const { return caption() == kSeparator; }

  bool checkable() const { return checkable_; }
  void set_checkable(bool checkable) { checkable_ = checkable; }
  bool checked() const { return checked_; }
  void set_checked(bool checked) { Change(checked_, checked, Property::kChecked); }

  void Choose() override;

  std::function<void()> Click;

 private:
  std::string shortcut_;
  bool checkable_ = false;
  bool checked_ = false;
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_BUTTON_H_
