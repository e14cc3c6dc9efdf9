// Leaving the program: one question, whether or not there are unsaved changes.
#ifndef QUILLA_PROGRAM_QUIT_H_
#define QUILLA_PROGRAM_QUIT_H_

#include "program/session.h"

namespace quilla {

class QuitCommand {
 public:
  explicit QuitCommand(Session& session);

 private:
  /// Gives whether the panel may close; the program ends then.
  bool Form_QueryUnload();

  Session& session_;
};

}  // namespace quilla

#endif  // QUILLA_PROGRAM_QUIT_H_
