// The choice of a name for a string: a new one, typed and checked for its spelling, or a known one
// from a list. One of the two inputs is live, the other is disabled and looks it.
#ifndef QUILLA_SYMBOLS_NAME_CHOICE_H_
#define QUILLA_SYMBOLS_NAME_CHOICE_H_

#include <functional>
#include <string>

#include "platform/button.h"
#include "platform/text_box.h"
#include "platform/text_list.h"

namespace quilla {

class NameChoice {
 public:
  /// The vocabulary names of the controls.
  struct Names {
    const char* new_option;
    const char* text;
    const char* known_option;
    const char* accept_button;
  };
  /// In what the boxes differ.
  struct Rules {
    /// Whether a row has been picked that takes the name. Without it a name alone is enough.
    std::function<bool()> RowPicked = nullptr;
    /// The options leave what the inputs hold; else they empty the text and choose the first name.
    bool options_keep_inputs = false;
    /// The options make the name acceptable whatever is picked or typed.
    bool options_accept = false;
  };

  /// Makes the options, the text box and the accept button in `box`; the list of known names moves
  /// into it.
  NameChoice(Box& box, const Names& names, const char* accept_caption, ComboBox& known)
      : NameChoice(box, names, accept_caption, known, {}) {}
  NameChoice(Box& box, const Names& names, const char* accept_caption, ComboBox& known,
             Rules rules);

  Button& accept_button() { return accept_button_; }
  /// Another button that takes the place of the accept button where Open is told so. The two are
  /// enabled together.
  void SetOtherAcceptButton(Button& other) { other_accept_button_ = &other; }

  /// Offers a new name, and the known ones if there are any. `accept` is the button that accepts
  /// it; it is disabled, since nothing can be accepted yet.
  void Open(Button& accept);
  void Open() { Open(accept_button_); }
  /// Offers the known names alone.
  void OpenKnown();
  /// Disables the options and the text box.
  void Disable();
  /// A row has been picked for the name.
  void RowPicked();
  /// Empties the text box for another name.
  void AskAgain();
  void FocusText() { text_.SetFocus(); }

  /// Whether the user chooses a known name.
  bool IsKnown() const { return known_option_.checked(); }
  /// The text typed for a new name, chosen or not.
  const std::string& NewName() const { return text_.text(); }
  /// The known name that is chosen, and its position, as those of the list.
  const std::string& KnownName() const { return known_.text(); }
  int KnownIndex() const { return known_.index(); }

 private:
  void NewOption_Click();
  void KnownOption_Click();
  void Text_Change();
  bool MayAccept() const { return !rules_.RowPicked || rules_.RowPicked(); }
  void SetAcceptable(bool acceptable);
  void Accept();

  Rules rules_;
  Option new_option_;
  TextBox text_;
  Option known_option_;
  ComboBox& known_;
  Button accept_button_;
  Button* other_accept_button_ = nullptr;
  Button* accept_ = &accept_button_;  // the one in use
};

}  // namespace quilla

#endif  // QUILLA_SYMBOLS_NAME_CHOICE_H_
