// A session with its rows and nothing else around it, on a table of a new file's size.
#ifndef QUILLA_PROGRAM_DESK_H_
#define QUILLA_PROGRAM_DESK_H_

#include <sstream>

#include "program/rows.h"
#include "program/session.h"
#include "robot/scripted_outside.h"

namespace quilla {

struct Desk {
  Desk() { rows.SetRows(kLeastRows); }

  std::ostringstream transcript;
  robot::ScriptedOutside outside{transcript};
  Session session{outside.ports};
  Rows rows{session};
};

}  // namespace quilla

#endif  // QUILLA_PROGRAM_DESK_H_
