#include "platform/serial_port.h"

#include "platform/failure.h"

namespace quilla {

void MSComm::SetPortOpen(bool open) {
  if (!open) {
    port_.Close();
    return;
  }
  if (port_.IsOpen()) throw Failure(ErrorNumber::kPortInUse);
  port_.Open(CommPort, Settings);
}

}  // namespace quilla
