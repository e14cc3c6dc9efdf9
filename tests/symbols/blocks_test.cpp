#include "symbols/blocks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <random>
#include <utility>
#include <vector>

namespace quilla {
namespace {

TEST(BlocksTest, OverlapCountsBothEndsOfEmptyBlocksToo) {
  const struct {
    Block a, b;
    bool overlap;
  } cases[] = {
      {{0x8000, 0x80FF}, {0x80FF, 0x8200}, true},   // one address shared
      {{0x8000, 0x80FF}, {0x8100, 0x8200}, false},  // touching
      {{0x8000, 0x8FFF}, {0x8100, 0x8200}, true},   // inside
      {{0x8000, 0x8000}, {0x8000, 0x8000}, true},
      {{0x8000, 0x7FFF}, {0x8001, 0x8002}, false},  // empty
      {{0x8000, 0x7FFF}, {0x8000, 0x8002}, true},   // empty, its origin inside
      {{0x8003, 0x8002}, {0x8000, 0x8002}, true},   // empty, its last address inside
      {{0x8000, 0x7FFF}, {0x8000, 0x7FFF}, false},  // empty blocks cover nothing
      {{0x0000, -1}, {0x0001, 0x0002}, false},
      {{0x0000, -1}, {0x0000, 0x0002}, true},
      {{0xFFFF, 0x10001}, {0x0000, 0x0001}, false},  // beyond the top is not the bottom
  };
  for (const auto& [a, b, overlap] : cases) {
    EXPECT_EQ(Overlap(a, b), overlap) << a.first << ' ' << b.first;
    EXPECT_EQ(Overlap(b, a), overlap) << b.first << ' ' << a.first;
  }
}

bool In(std::int32_t address, const Block& block) {
  return std::clamp(address, block.first, std::max(block.first, block.last)) == address &&
         address <= block.last;
}

/// All pairs in order, each by the four tests.
std::optional<std::pair<int, int>> FirstByAllPairs(const std::vector<Block>& blocks) {
  const int count = static_cast<int>(blocks.size());
  for (int i = 0; i < count; ++i) {
    for (int j = i + 1; j < count; ++j) {
      const Block& a = blocks[static_cast<std::size_t>(i)];
      const Block& b = blocks[static_cast<std::size_t>(j)];
      if (In(a.first, b) || In(a.last, b) || In(b.first, a) || In(b.last, a)) return {{i, j}};
    }
  }
  return std::nullopt;
}

TEST(BlocksTest, FirstPairIsThatOfAllPairs) {
  std::mt19937 random(8085);
  int found = 0;
  for (int round = 0; round < 4000; ++round) {
    // Few addresses for many blocks and the other way round, one in four blocks empty.
    const int span = round % 2 == 0 ? 20 : 400;
    std::uniform_int_distribution<std::int32_t> origin(0, span);
    std::uniform_int_distribution<std::int32_t> size(0, 3);
    std::uniform_int_distribution<std::size_t> count(0, 8);
    std::vector<Block> blocks(count(random));
    for (Block& block : blocks) {
      block.first = origin(random);
      block.last = block.first + size(random) - 1;
    }
    const auto expected = FirstByAllPairs(blocks);
    ASSERT_EQ(FirstOverlap(blocks), expected) << "round " << round;
    found += expected ? 1 : 0;
  }
  EXPECT_GT(found, 500);
  EXPECT_LT(found, 3500);
}

}  // namespace
}  // namespace quilla
