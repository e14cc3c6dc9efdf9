#include "robot/virtual_clock.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace quilla::robot {

void VirtualClock::Start(Timer& timer) {
  Stop(timer);
  alarms_.push_back({&timer, now_ + std::max(1, timer.interval_ms()), ++starts_});
}

void VirtualClock::Stop(Timer& timer) {
  std::erase_if(alarms_, [&](const Alarm& alarm) { return alarm.timer == &timer; });
}

void VirtualClock::Pass(int milliseconds) {
  const std::int64_t end = now_ + milliseconds;
  while (FireNext(end)) {
  }
  // A handler that waited for lines of the script may have let more time pass.
  now_ = std::max(now_, end);
}

void VirtualClock::PassAll() {
  while (FireNext(std::numeric_limits<std::int64_t>::max())) {
  }
}

bool VirtualClock::FireNext(std::int64_t limit) {
  const auto next =
      std::min_element(alarms_.begin(), alarms_.end(), [](const Alarm& left, const Alarm& right) {
        return std::tie(left.due, left.order) < std::tie(right.due, right.order);
      });
  if (next == alarms_.end() || next->due > limit) return false;
  now_ = std::max(now_, next->due);
  next->timer->Expire();
  return true;
}

}  // namespace quilla::robot
