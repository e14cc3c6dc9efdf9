// The menu of serial ports, and what the user is told where the chosen one cannot be had.
#ifndef QUILLA_LINK_PORT_MENU_H_
#define QUILLA_LINK_PORT_MENU_H_

#include "platform/failure.h"
#include "program/session.h"

namespace quilla {

class PortMenu {
 public:
  explicit PortMenu(Session& session);

  /// Tells the user of a port that is missing or in use; false, and no word, for any other failure.
  bool TellIfUnavailable(const Failure& failure);

 private:
  void PortOption_Click(int index);

  Session& session_;
};

}  // namespace quilla

#endif  // QUILLA_LINK_PORT_MENU_H_
