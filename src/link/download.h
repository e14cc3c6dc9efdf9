// Download: a hex file is read, checked and sent to the trainer, a stage at a time, so that the tip
// of each stage can be seen. The trainer answers nothing.
#ifndef QUILLA_LINK_DOWNLOAD_H_
#define QUILLA_LINK_DOWNLOAD_H_

#include <string>

#include "link/port_menu.h"
#include "platform/timer.h"
#include "program/session.h"
#include "program/state_machine.h"

namespace quilla {

class Download {
 public:
  Download(Session& session, StateMachine& states, PortMenu& ports);

 private:
  void DownloadFile_Click();
  void CreateDnldString_Timer();
  void DownloadTimer_Timer();
  void PortCloseTimer_Timer();
  void Send();

  Session& session_;
  StateMachine& states_;
  PortMenu& ports_;
  Timer CreateDnldString_;
  Timer DownloadTimer_;
  Timer PortCloseTimer_;
  /// All records, a carriage return behind each. It is not what is sent.
  std::string DownloadString_;
};

}  // namespace quilla

#endif  // QUILLA_LINK_DOWNLOAD_H_
