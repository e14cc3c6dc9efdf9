// The base of all controls: a name, a container, and the properties that every control has.
// A control knows nothing of pixels; whoever shows it observes it.
#ifndef QUILLA_PLATFORM_CONTROL_H_
#define QUILLA_PLATFORM_CONTROL_H_

#include <functional>
#include <string>

namespace quilla {

class Form;

/// What an observer is told has changed.
enum class Property {
  kCaption,
  kText,
  kEnabled,
  kVisible,
  kChecked,
  kItems,    // the entries of a list
  kIndex,    // the chosen entry of a list
  kActive,   // white as a live input, or greyed as an idle one
  kColor,    // the foreground of a label
  kPointer,  // the shape of the mouse pointer over a grid or a form
  kFocus,    // a form: the control with the keyboard focus
  kDefault,  // a form: the default button
};

class ControlObserver {
 public:
  virtual ~ControlObserver() = default;
  virtual void PropertyChanged(Property property) = 0;
};

class Control {
 public:
  /// The index of a control that is no part of a control array.
  static constexpr int kNoIndex = -1;

  /// A control stands in a box, a menu or a form; a form stands in nothing.
  explicit Control(Control* container, std::string name, int index = kNoIndex);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  const std::string& name() const { return name_; }
  int index() const { return index_; }
  Control* container() const { return container_; }
  /// The form that the control stands on; null for one that stands nowhere yet.
  Form* form() const;
  /// Moves the control into another container of the same or no form.
  void PlaceIn(Control* container);

  const std::string& caption() const { return caption_; }
  void set_caption(std::string caption);
  const std::string& tool_tip() const { return tool_tip_; }
  void set_tool_tip(std::string tool_tip) { tool_tip_ = std::move(tool_tip); }

  /// The control's own setting, whatever its containers say.
  bool enabled() const { return enabled_; }
  bool visible() const { return visible_; }
  void set_enabled(bool enabled);
  void set_visible(bool visible);
  void Show() { set_visible(true); }
  void Hide() { set_visible(false); }
  /// The setting that the user meets: the control's and that of all it stands in.
  bool IsEnabled() const;
  bool IsVisible() const;

  /// Asks for the keyboard focus. A control that cannot take it leaves it where it is.
  void SetFocus();

  // What the user does to a control. It runs the handlers that the control has for it, each to its
  // end or to a failure that ends it where it stands, and passes over a control without one. None
  // looks whether the user could do it now: that is for whoever acts for the user.

  /// Presses and lets go the mouse on the control; neither is a click.
  virtual void Press() {}
  virtual void Release() {}
  /// Clicks the control, or chooses it by a key.
  virtual void Choose() {}
  /// Presses the key of an ASCII character while the control has the focus; a text box is typed
  /// into instead.
  virtual void PressKey(char /*character*/) {}
  /// Whether such a key runs a handler.
  virtual bool TakesKeys() const { return false; }
  /// Moves the pointer over the control.
  void Hover() const;

  /// The pointer moved over the control.
  std::function<void()> MouseMove;

  ControlObserver* observer = nullptr;

 protected:
  void Notify(Property property) const {
    if (observer != nullptr) observer->PropertyChanged(property);
  }
  /// Sets a property and tells the observer, if the value is another one.
  template <typename T>
  bool Change(T& member, T value, Property property) {
    if (member == value) return false;
    member = std::move(value);
    Notify(property);
    return true;
  }

 private:
  friend class Form;

  std::string name_;
  int index_;
  Control* container_ = nullptr;
  std::string caption_;
  std::string tool_tip_;
  bool enabled_ = true;
  bool visible_ = true;
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_CONTROL_H_
