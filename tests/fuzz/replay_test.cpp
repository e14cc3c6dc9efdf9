// The corpus of the fuzzing target, played once.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "fuzz/hex_fuzz.h"

namespace {

TEST(HexFuzzTest, TheCorpusGoesThrough) {
  int played = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(QUILLA_SOURCE_DIR "/tests/fuzz/corpus")) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string input{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    ++played;
  }
  EXPECT_GE(played, 3);
}

}  // namespace
