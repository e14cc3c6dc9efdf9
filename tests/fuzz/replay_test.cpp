// The corpora of the fuzzing targets, played once.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "fuzz/fuzz.h"

namespace quilla::fuzz {
namespace {

TEST(FuzzTest, TheCorporaGoThrough) {
  const struct {
    std::string name;
    void (*target)(std::string_view);
  } targets[] = {{"hex", HexFile},
                 {"project", ProjectFile},
                 {"items", Items},
                 {"script", Script},
                 {"simulator", Simulator}};
  for (const auto& [name, target] : targets) {
    int played = 0;
    for (const auto& entry :
         std::filesystem::directory_iterator(QUILLA_SOURCE_DIR "/tests/fuzz/corpus/" + name)) {
      std::ifstream file(entry.path(), std::ios::binary);
      target(std::string{std::istreambuf_iterator<char>(file), {}});
      ++played;
    }
    EXPECT_GT(played, 0) << name;
  }
}

}  // namespace
}  // namespace quilla::fuzz
