// A clock that stands still until the script lets time pass.
#ifndef QUILLA_ROBOT_VIRTUAL_CLOCK_H_
#define QUILLA_ROBOT_VIRTUAL_CLOCK_H_

#include <cstdint>
#include <vector>

#include "platform/timer.h"

namespace quilla::robot {

class VirtualClock : public Clock {
 public:
  void Start(Timer& timer) override;
  void Stop(Timer& timer) override;

  /// Lets time pass: timers fire when they are due, in order of time, then of enabling.
  void Pass(int milliseconds);
  /// Lets time pass until no timer is enabled.
  void PassAll();

 private:
  struct Alarm {
    Timer* timer;
    std::int64_t due;
    std::int64_t order;  // of the enabling
  };

  /// Fires the next timer that is due by `limit`; false if there is none.
  bool FireNext(std::int64_t limit);

  std::int64_t now_ = 0;
  std::int64_t starts_ = 0;
  std::vector<Alarm> alarms_;
};

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_VIRTUAL_CLOCK_H_
