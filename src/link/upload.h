// Upload: what the trainer sends is collected until its end record, cut into records and saved.
#ifndef QUILLA_LINK_UPLOAD_H_
#define QUILLA_LINK_UPLOAD_H_

#include <cstddef>
#include <string>

#include "link/port_menu.h"
#include "platform/timer.h"
#include "program/session.h"
#include "program/state_machine.h"

namespace quilla {

class Upload {
 public:
  Upload(Session& session, StateMachine& states, PortMenu& ports);

 private:
  void UploadFile_Click();
  void CreateHexTimer_Timer();
  void OpenAndTrigger();
  /// Collects what arrives until the end record has come. Other handlers run meanwhile; one that
  /// closes the port ends the wait with `kPortFailed`.
  void Poll();
  bool EndRecordHasCome();
  void ClosePort();
  /// Cuts what has arrived into the records of `HexList`. Fails with `kOutsideList` for anything
  /// ahead of the first colon, and for a record that is too short for its line end.
  void CutRecords();

  Session& session_;
  StateMachine& states_;
  PortMenu& ports_;
  Timer CreateHexTimer_;
  /// Everything that arrived in this upload.
  std::string UploadString_;
  /// How many of its characters have been looked at: no end record begins before.
  std::size_t searched_ = 0;
};

}  // namespace quilla

#endif  // QUILLA_LINK_UPLOAD_H_
