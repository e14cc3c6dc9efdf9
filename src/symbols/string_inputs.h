// The pair of inputs for a string, a text box for a new name and a list of the known ones: one of
// them is live, the other is disabled and looks it.
#ifndef QUILLA_SYMBOLS_STRING_INPUTS_H_
#define QUILLA_SYMBOLS_STRING_INPUTS_H_

#include "platform/text_box.h"
#include "platform/text_list.h"

namespace quilla {

inline void SetLive(TextBox& text, bool live) {
  text.set_enabled(live);
  text.set_active(live);
}

inline void SetLive(ComboBox& list, bool live) {
  list.set_enabled(live);
  list.set_active(live);
}

/// Empties the text box and makes it the live one.
inline void OfferNewName(TextBox& text, ComboBox& known) {
  SetLive(known, false);
  text.set_text({});
  SetLive(text, true);
}

/// Makes the list the live one, with its first entry chosen, and empties the text box.
inline void OfferKnownName(TextBox& text, ComboBox& known) {
  SetLive(text, false);
  text.set_text({});
  SetLive(known, true);
  known.SelectFirst();
}

}  // namespace quilla

#endif  // QUILLA_SYMBOLS_STRING_INPUTS_H_
