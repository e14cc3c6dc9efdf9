#include "window/qt_clock.h"

#include <algorithm>

namespace quilla {
namespace {

/// A timer that is held looks again so soon whether it may go.
constexpr int kHeldMs = 1;

}  // namespace

void QtClock::Start(Timer& timer) {
  std::unique_ptr<QTimer>& qt_timer = timers_[&timer];
  if (qt_timer == nullptr) {
    qt_timer = std::make_unique<QTimer>();
    qt_timer->setSingleShot(true);
    qt_timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(qt_timer.get(), &QTimer::timeout, [this, &timer] { Expire(timer); });
  }
  qt_timer->start(timer.interval_ms());
}

void QtClock::Expire(Timer& timer) {
  if (held_) {
    timers_.at(&timer)->start(kHeldMs);
  } else {
    gate_.Enter([&timer] { timer.Expire(); });
  }
}

void QtClock::Stop(Timer& timer) {
  const auto found = timers_.find(&timer);
  if (found != timers_.end()) found->second->stop();
}

bool QtClock::IsAtRest() const {
  return std::none_of(timers_.begin(), timers_.end(),
                      [](const auto& each) { return each.second->isActive(); });
}

}  // namespace quilla
