#include "window/qt_outside.h"

#include "platform/failure.h"

namespace quilla {

void NoSerialPort::Open(int /*number*/, const std::string& /*settings*/) {
  throw Failure(ErrorNumber::kPortMissing);
}

void NoSerialPort::Write(const std::string& /*bytes*/) { throw Failure(ErrorNumber::kPortFailed); }

std::string NoSerialPort::Read() { throw Failure(ErrorNumber::kPortFailed); }

}  // namespace quilla
