// What holds in every state of the program, whatever the user has done.
#ifndef QUILLA_WALK_RULES_H_
#define QUILLA_WALK_RULES_H_

#include <string>

#include "program/session.h"

namespace quilla::walk {

class Rules {
 public:
  /// The session must outlive the object.
  explicit Rules(const Session& session) : session_(session) {}

  /// Says which of the rules is broken; empty if all hold.
  std::string Broken() const;
  /// The same for what the lists say of labels. It holds where they have just been brought up to
  /// date, as at the start of the place tool.
  std::string BrokenLabelList() const;
  /// The same for the strings of the clipboard, where it has just been pasted.
  std::string BrokenPaste() const;

 private:
  const Session& session_;
};

}  // namespace quilla::walk

#endif  // QUILLA_WALK_RULES_H_
