#include "symbols/blocks.h"

#include <algorithm>

namespace quilla {
namespace {

bool Contains(const Block& block, std::int32_t address) {
  return block.first <= address && address <= block.last;
}

/// Whether any two blocks might overlap: a quick test that is never wrong when it says no.
bool MayOverlap(const std::vector<Block>& blocks) {
  std::vector<Block> sorted;
  sorted.reserve(blocks.size());
  for (const auto& [first, last] : blocks) {
    sorted.push_back({std::min(first, last), std::max(first, last)});
  }
  std::sort(sorted.begin(), sorted.end(),
            [](const Block& a, const Block& b) { return a.first < b.first; });
  std::int32_t reach = sorted.front().last;
  for (std::size_t i = 1; i < sorted.size(); ++i) {
    if (sorted[i].first <= reach) return true;
    reach = std::max(reach, sorted[i].last);
  }
  return false;
}

}  // namespace

bool Overlap(const Block& a, const Block& b) {
  return Contains(b, a.first) || Contains(b, a.last) || Contains(a, b.first) || Contains(a, b.last);
}

std::optional<std::pair<int, int>> FirstOverlap(const std::vector<Block>& blocks) {
  if (blocks.size() < 2 || !MayOverlap(blocks)) return std::nullopt;
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    for (std::size_t j = i + 1; j < blocks.size(); ++j) {
      if (Overlap(blocks[i], blocks[j])) {
        return std::pair{static_cast<int>(i), static_cast<int>(j)};
      }
    }
  }
  return std::nullopt;
}

}  // namespace quilla
