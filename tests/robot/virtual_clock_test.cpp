#include "robot/virtual_clock.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/timer.h"

namespace quilla::robot {
namespace {

TEST(VirtualClockTest, FiresInOrderOfTimeThenOfEnablingAndOnce) {
  VirtualClock clock;
  Timer slow(clock, "S", 30), quick(clock, "Q", 10), other(clock, "O", 10);
  std::string fired;
  for (Timer* timer : {&slow, &other}) timer->Fire = [&, timer] { fired += timer->name(); };
  quick.Fire = [&] {
    EXPECT_FALSE(quick.enabled());
    fired += "Q";
    if (fired.size() < 6) quick.Enable();
  };
  slow.Enable();
  clock.Pass(20);
  other.Enable();
  quick.Enable();
  clock.Pass(9);
  EXPECT_EQ(fired, "");
  clock.Pass(1);
  EXPECT_EQ(fired, "SOQ");
  slow.Enable();
  clock.Pass(25);
  EXPECT_EQ(fired, "SOQQQ");
  clock.PassAll();
  EXPECT_EQ(fired, "SOQQQSQ") << "at one time, the timer enabled first";
}

}  // namespace
}  // namespace quilla::robot
