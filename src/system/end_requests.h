// Requests to end the program that come from outside: SIGTERM, as at the end of a session, and
// SIGHUP, when a terminal goes. Where the system has none of these there are never any.
#ifndef QUILLA_SYSTEM_END_REQUESTS_H_
#define QUILLA_SYSTEM_END_REQUESTS_H_

namespace quilla {

/// As long as it lives, a request is noted and ends nothing by itself. One that the program was
/// started to ignore stays ignored. There is one object at a time.
class EndRequests {
 public:
  /// What a request does to the standard input: nothing, or end it, also for a read under way.
  enum class Input { kGoesOn, kEnds };

  explicit EndRequests(Input input);
  EndRequests(const EndRequests&) = delete;
  EndRequests& operator=(const EndRequests&) = delete;
  ~EndRequests();

  bool has_come() const;
  /// A descriptor that has a byte to read for each request; -1 where there are never any.
  int descriptor() const { return ends_[0]; }
  /// Reads such a byte.
  void TakeByte() const;
  /// Ends the program as the last request would have, had it not been noted; nothing without one.
  void Obey();

 private:
  int ends_[2] = {-1, -1};  // of a pipe
};

/// Waits for ever, and lets every request end the program, also one that has come before.
[[noreturn]] void WaitForTheEnd();

/// Makes a file that grows beyond what the system allows fail its write, and not end the program.
void LetLongFilesFail();

}  // namespace quilla

#endif  // QUILLA_SYSTEM_END_REQUESTS_H_
