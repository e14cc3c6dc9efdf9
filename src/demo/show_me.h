// "Show me": begins the demonstrations that the guide offers.
#ifndef QUILLA_DEMO_SHOW_ME_H_
#define QUILLA_DEMO_SHOW_ME_H_

#include <QString>
#include <memory>

#include "demo/demonstration.h"

namespace quilla::demo {

class ShowMe {
 public:
  ShowMe(Quilla& quilla, QtOutside& outside) : quilla_(quilla), outside_(outside) {}

  /// Begins the demonstration of that name as New does, question and all; on Cancel, and while a
  /// task is under way, it does not begin. Nothing for an unknown name.
  void Begin(const QString& name);

  /// The time between two acts, for the demonstrations to come.
  void set_pace(int milliseconds) { pace_ms_ = milliseconds; }
  /// The demonstration begun last; null before the first.
  Demonstration* demonstration() { return demonstration_.get(); }

 private:
  bool MayBegin();
  bool ClearTable();
  void CloseOtherWindows();

  Quilla& quilla_;
  QtOutside& outside_;
  int pace_ms_ = Demonstration::kPaceMs;
  std::unique_ptr<Demonstration> demonstration_;
};

}  // namespace quilla::demo

#endif  // QUILLA_DEMO_SHOW_ME_H_
