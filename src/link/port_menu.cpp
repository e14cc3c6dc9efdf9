#include "link/port_menu.h"

#include <string>

namespace quilla {

PortMenu::PortMenu(Session& session) : session_(session) {
  for (MenuEntry& option : session_.menu.PortOption) {
    option.Click = [this, &option] { PortOption_Click(option.index()); };
  }
}

bool PortMenu::TellIfUnavailable(const Failure& failure) {
  if (failure.number() != ErrorNumber::kPortMissing &&
      failure.number() != ErrorNumber::kPortInUse) {
    return false;
  }
  session_.ShowCritical("Comm" + std::to_string(session_.CommPortNumber) +
                        " is not available or already in use. Please assign another port for "
                        "serial communication.");
  return true;
}

void PortMenu::PortOption_Click(int index) {
  for (MenuEntry& option : session_.menu.PortOption) option.set_checked(option.index() == index);
  session_.CommPortNumber = index + 1;
  session_.MSComm1.CommPort = session_.CommPortNumber;
}

}  // namespace quilla
