// A timer that fires once, an interval after it was enabled, and the clock behind all timers.
#ifndef QUILLA_PLATFORM_TIMER_H_
#define QUILLA_PLATFORM_TIMER_H_

#include <functional>
#include <string>

namespace quilla {

class Timer;

/// The clock of the outside world: real time in the program, virtual time under a script.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Begins the interval of an enabled timer, anew if it is running.
  virtual void Start(Timer& timer) = 0;
  virtual void Stop(Timer& timer) = 0;
};

class Timer {
 public:
  Timer(Clock& clock, std::string name, int interval_ms);
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  ~Timer();

  const std::string& name() const { return name_; }
  int interval_ms() const { return interval_ms_; }
  bool enabled() const { return enabled_; }
  /// Enabling a timer that is enabled starts its interval anew.
  void Enable();
  void Disable();
  /// The interval is over; called by the clock. The timer is off when its handler runs, which may
  /// enable it again.
  void Expire();

  /// Runs once for each interval that comes to its end.
  std::function<void()> Fire;

 private:
  Clock& clock_;
  std::string name_;
  int interval_ms_;
  bool enabled_ = false;
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_TIMER_H_
