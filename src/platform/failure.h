// The one exception of the system: an operation that could not be carried out, told by a number.
// Commands with an error trap look at the number; any other handler just ends where it stood.
#ifndef QUILLA_PLATFORM_FAILURE_H_
#define QUILLA_PLATFORM_FAILURE_H_

#include <exception>
#include <new>
#include <utility>

namespace quilla {

enum class ErrorNumber : int {
  kOverflow = 6,             // a number that does not fit its width
  kOutOfMemory = 7,          // a lack of memory
  kOutsideList = 9,          // a position outside a list, or a character outside a text
  kNotANumber = 13,          // a text that does not convert
  kBadChannel = 52,          // a file channel that is not open, or not open for this use
  kFileNotFound = 53,        // a file that cannot be opened
  kChannelOpen = 55,         // a file channel that is open already
  kWriteFailed = 61,         // a write that the disk did not take
  kPastEndOfFile = 62,       // a read at the end of the file
  kReadFailed = 57,          // a read that the disk refused
  kPortMissing = 8002,       // the serial port does not exist
  kPortInUse = 8005,         // the serial port is held by somebody
  kPortFailed = 8021,        // the serial port is closed, or refuses to read or write
  kGridMemory = 30006,       // a table that cannot grow that far
  kOutsideTable = 30009,     // a cell outside a table
  kDialogCancelled = 32755,  // the user left a file dialog without choosing
};

class Failure : public std::exception {
 public:
  explicit Failure(ErrorNumber number) : number_(number) {}
  ErrorNumber number() const { return number_; }
  const char* what() const noexcept override { return "operation failed"; }

 private:
  ErrorNumber number_;
};

/// Carries out an action of a command with an error trap. A lack of memory is a failure there like
/// any other.
template <typename Action>
auto Trapped(Action&& action) {
  try {
    return std::forward<Action>(action)();
  } catch (const std::bad_alloc&) {
    throw Failure(ErrorNumber::kOutOfMemory);
  }
}

}  // namespace quilla

#endif  // QUILLA_PLATFORM_FAILURE_H_
