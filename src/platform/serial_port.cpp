#include "platform/serial_port.h"

#include <utility>

#include "platform/failure.h"

namespace quilla {

void MSComm::SetPortOpen(bool open) {
  if (!open) {
    port_.Close();
    return;
  }
  if (port_.IsOpen()) throw Failure(ErrorNumber::kPortInUse);
  port_.Open(CommPort, Settings);
  arrived_.clear();
}

std::string MSComm::Input() {
  arrived_ += port_.Read();
  std::string rest;
  if (InputLen > 0 && arrived_.size() > InputLen) {
    rest = arrived_.substr(InputLen);
    arrived_.resize(InputLen);
  }
  return std::exchange(arrived_, std::move(rest));
}

}  // namespace quilla
