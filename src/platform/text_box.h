// A line of text that the user types, with a limit and a handler for every change.
#ifndef QUILLA_PLATFORM_TEXT_BOX_H_
#define QUILLA_PLATFORM_TEXT_BOX_H_

#include <functional>
#include <string>
#include <string_view>

#include "platform/control.h"

namespace quilla {

class TextBox : public Control {
 public:
  /// `max_length` is the number of characters that the box takes; 0 is no limit.
  TextBox(Control* container, std::string name, int max_length = 0);

  const std::string& text() const { return text_; }
  int max_length() const { return max_length_; }
  /// Replaces the text, cut off at the limit. Another text than before runs the change handler.
  void set_text(std::string text);
  /// The user made this text of it; or typed one character (in UTF-8) at the end. A failure of the
  /// change handler ends it where it stands.
  void Edit(std::string text);
  void Type(std::string_view character) { Edit(text_ + std::string(character)); }

  /// Whether the box looks like a live input. It says nothing about `enabled`.
  bool active() const { return active_; }
  void set_active(bool active) { Change(active_, active, Property::kActive); }

  /// The text has changed, by the user or by code.
  std::function<void()> TextChange;

 private:
  std::string text_;
  int max_length_;
  bool active_ = true;
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_TEXT_BOX_H_
