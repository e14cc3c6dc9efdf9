// A short random walk; `quilla-walk` takes long ones.
#include "walk/walk.h"

#include <gtest/gtest.h>

namespace quilla::walk {
namespace {

TEST(WalkTest, RulesHoldWhateverTheUserDoes) {
  constexpr unsigned kScripts = 200;
  TellScriptOnDeath();
  for (unsigned seed = 1; seed <= kScripts; ++seed) ASSERT_EQ(FaultOfWalk(seed), "");
}

}  // namespace
}  // namespace quilla::walk
