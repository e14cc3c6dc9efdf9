// The lists of labels and variables: spelling, search, and the upkeep of what is used and placed.
#ifndef QUILLA_SYMBOLS_STRING_LISTS_H_
#define QUILLA_SYMBOLS_STRING_LISTS_H_

#include <string>
#include <string_view>

#include "program/session.h"
#include "program/state_machine.h"

namespace quilla {

/// The longest name that the user can type, in characters.
inline constexpr int kLongestName = 6;

/// Whether a new string may be spelled so: digits and lower-case letters, a letter first.
bool IsGoodName(std::string_view name);

class StringLists {
 public:
  StringLists(Session& session, StateMachine& states);

  /// Whether a name is a label or a variable already.
  bool IsTaken(const std::string& name) const;
  /// Rebuilds, from the rows, which labels are used and placed and where, and the copies of
  /// LabelCombo that the find, place and replace tools offer.
  void UpdateLabels();
  /// Removes all labels that are neither placed nor used and all variables that no row uses.
  void DeleteUnusedLabels_Click();

 private:
  /// Gives the find, place and replace tools the labels as they are now.
  void CopyLabels();
  void DeleteUnusedVariables();

  Session& session_;
  StateMachine& states_;
};

}  // namespace quilla

#endif  // QUILLA_SYMBOLS_STRING_LISTS_H_
