// The write mode: whether a finished line moves on to the next one or opens a fresh one.
#ifndef QUILLA_ENTRY_WRITE_MODE_H_
#define QUILLA_ENTRY_WRITE_MODE_H_

#include "program/rows.h"
#include "program/session.h"

namespace quilla {

class WriteModeSwitch {
 public:
  WriteModeSwitch(Session& session, Rows& rows);

 private:
  void WriteMode_Click();

  Session& session_;
  Rows& rows_;
};

}  // namespace quilla

#endif  // QUILLA_ENTRY_WRITE_MODE_H_
