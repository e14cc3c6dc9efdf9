#include "symbols/blocks.h"

#include <algorithm>
#include <cstddef>

namespace quilla {
namespace {

bool Contains(const Block& block, std::int32_t address) {
  return block.first <= address && address <= block.last;
}

/// The ends of many blocks in order, to tell of one of these blocks whether any other overlaps it
/// without a look at each.
class BlockEnds {
 public:
  explicit BlockEnds(const std::vector<Block>& blocks) {
    for (const Block& block : blocks) {
      ends_.push_back(block.first);
      ends_.push_back(block.last);
      if (block.first > block.last) continue;  // nothing lies in an empty block
      firsts_.push_back(block.first);
      lasts_.push_back(block.last);
    }
    for (std::vector<std::int32_t>* list : {&ends_, &firsts_, &lasts_}) {
      std::sort(list->begin(), list->end());
    }
  }

  bool OtherOverlaps(const Block& block) const {
    const int own_blocks = block.first <= block.last ? 1 : 0;
    const int own_ends = 2 * own_blocks;
    return BlocksAround(block.first) > own_blocks || BlocksAround(block.last) > own_blocks ||
           EndsIn(block) > own_ends;
  }

 private:
  using Addresses = std::vector<std::int32_t>;

  static std::ptrdiff_t CountBelow(const Addresses& sorted, std::int32_t address) {
    return std::lower_bound(sorted.begin(), sorted.end(), address) - sorted.begin();
  }
  static std::ptrdiff_t CountUpTo(const Addresses& sorted, std::int32_t address) {
    return std::upper_bound(sorted.begin(), sorted.end(), address) - sorted.begin();
  }
  std::ptrdiff_t BlocksAround(std::int32_t address) const {
    return CountUpTo(firsts_, address) - CountBelow(lasts_, address);
  }
  std::ptrdiff_t EndsIn(const Block& block) const {
    return CountUpTo(ends_, block.last) - CountBelow(ends_, block.first);
  }

  Addresses ends_;  // both of every block
  Addresses firsts_;
  Addresses lasts_;
};

}  // namespace

bool Overlap(const Block& a, const Block& b) {
  return Contains(b, a.first) || Contains(b, a.last) || Contains(a, b.first) || Contains(a, b.last);
}

std::optional<std::pair<int, int>> FirstOverlap(const std::vector<Block>& blocks) {
  const BlockEnds ends(blocks);
  const auto lower = std::find_if(blocks.begin(), blocks.end(),
                                  [&](const Block& block) { return ends.OtherOverlaps(block); });
  if (lower == blocks.end()) return std::nullopt;
  // Of the first block that any other overlaps, the other one can only stand behind it.
  const auto higher = std::find_if(lower + 1, blocks.end(),
                                   [&](const Block& block) { return Overlap(*lower, block); });
  return std::pair{static_cast<int>(lower - blocks.begin()),
                   static_cast<int>(higher - blocks.begin())};
}

}  // namespace quilla
