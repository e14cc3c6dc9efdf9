// A short random walk; QUILLA_WALKS makes it as long as that says, from the seed QUILLA_SEED on.
#include "walk/walk.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace quilla::walk {
namespace {

unsigned Setting(const char* name, unsigned otherwise) {
  const char* const text = std::getenv(name);
  return text == nullptr ? otherwise : static_cast<unsigned>(std::stoul(text));
}

TEST(WalkTest, RulesHoldWhateverTheUserDoes) {
  const unsigned first = Setting("QUILLA_SEED", 1);
  const unsigned scripts = Setting("QUILLA_WALKS", 150);
  TellScriptOnDeath();
  for (unsigned seed = first; seed < first + scripts; ++seed) ASSERT_EQ(FaultOfWalk(seed), "");
}

}  // namespace
}  // namespace quilla::walk
