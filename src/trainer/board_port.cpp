#include "trainer/board_port.h"

#include <utility>

#include "platform/failure.h"

namespace quilla::trainer {

void BoardPort::Open(int /*number*/, const std::string& /*settings*/) {
  if (is_open_) throw Failure(ErrorNumber::kPortInUse);
  is_open_ = true;
}

void BoardPort::Close() {
  is_open_ = false;
  arrived_.clear();
}

void BoardPort::CheckOpen() const {
  if (!is_open_) throw Failure(ErrorNumber::kPortFailed);
}

void BoardPort::Write(const std::string& bytes) {
  CheckOpen();
  for (const char character : bytes) {
    if (board_.Take(character) == Board::Event::kTrigger) {
      arrived_ += board_.Image();
    }
  }
}

std::string BoardPort::Read() {
  CheckOpen();
  return std::exchange(arrived_, {});
}

}  // namespace quilla::trainer
