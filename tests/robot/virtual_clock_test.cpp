#include "robot/virtual_clock.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/timer.h"

namespace quilla::robot {
namespace {

class VirtualClockTest : public testing::Test {
 protected:
  VirtualClockTest() {
    for (Timer* timer : {&slow_, &quick_, &other_}) {
      timer->Fire = [this, timer] { fired_ += timer->name(); };
    }
  }

  VirtualClock clock_;
  Timer slow_{clock_, "S", 30};
  Timer quick_{clock_, "Q", 10};
  Timer other_{clock_, "O", 10};
  std::string fired_;
};

TEST_F(VirtualClockTest, FiresInOrderOfTimeThenOfEnabling) {
  slow_.Enable();
  clock_.Pass(20);
  other_.Enable();
  quick_.Enable();
  clock_.Pass(9);
  EXPECT_EQ(fired_, "");
  clock_.Pass(1);
  EXPECT_EQ(fired_, "SOQ");
}

TEST_F(VirtualClockTest, TimerFiresOnceUnlessItsHandlerEnablesItAgain) {
  quick_.Fire = [this] {
    EXPECT_FALSE(quick_.enabled());
    fired_ += "Q";
    if (fired_.size() < 4) quick_.Enable();
  };
  other_.Enable();
  slow_.Enable();
  quick_.Enable();
  clock_.Pass(25);
  EXPECT_EQ(fired_, "OQQ");
  clock_.PassAll();
  EXPECT_EQ(fired_, "OQQSQ") << "at one time, the timer enabled first";
}

}  // namespace
}  // namespace quilla::robot
