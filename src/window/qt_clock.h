// The clock of the desktop: each timer of the system runs on a timer of Qt.
#ifndef QUILLA_WINDOW_QT_CLOCK_H_
#define QUILLA_WINDOW_QT_CLOCK_H_

#include <QTimer>
#include <memory>
#include <unordered_map>

#include "platform/timer.h"
#include "window/gate.h"

namespace quilla {

class QtClock : public Clock {
 public:
  explicit QtClock(Gate& gate) : gate_(gate) {}

  void Start(Timer& timer) override;
  void Stop(Timer& timer) override;
  /// Whether no timer is enabled.
  bool IsAtRest() const;
  /// Keeps timers that are due waiting until they are let go.
  void Hold() { held_ = true; }
  void LetGo() { held_ = false; }

 private:
  void Expire(Timer& timer);

  Gate& gate_;
  bool held_ = false;
  std::unordered_map<const Timer*, std::unique_ptr<QTimer>> timers_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_QT_CLOCK_H_
