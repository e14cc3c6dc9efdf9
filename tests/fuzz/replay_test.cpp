// The corpora of the fuzzing targets, played once.
#include <gtest/gtest.h>

#include <filesystem>

#include "fuzz/targets.h"
#include "panel/running_program.h"

namespace quilla::fuzz {
namespace {

TEST(FuzzTest, TheCorporaGoThrough) {
  const std::filesystem::path corpora = QUILLA_SOURCE_DIR "/tests/fuzz/corpus";
  for (const auto& [name, take] : kTargets) {
    int played = 0;
    for (const auto& entry : std::filesystem::directory_iterator(corpora / name)) {
      take(BytesOf(entry.path()));
      ++played;
    }
    EXPECT_GT(played, 0) << name;
  }
}

}  // namespace
}  // namespace quilla::fuzz
