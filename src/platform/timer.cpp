#include "platform/timer.h"

#include <utility>

#include "platform/dispatch.h"

namespace quilla {

Timer::Timer(Clock& clock, std::string name, int interval_ms)
    : clock_(clock), name_(std::move(name)), interval_ms_(interval_ms) {}

Timer::~Timer() { Disable(); }

void Timer::Enable() {
  enabled_ = true;
  clock_.Start(*this);
}

void Timer::Disable() {
  if (!enabled_) return;
  enabled_ = false;
  clock_.Stop(*this);
}

void Timer::Expire() {
  Disable();
  Dispatch(Fire);
}

}  // namespace quilla
