// Blocks of addresses, and the search for two that share one.
#ifndef QUILLA_SYMBOLS_BLOCKS_H_
#define QUILLA_SYMBOLS_BLOCKS_H_

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace quilla {

/// A block's first and last address. The last of a block without instructions is one below its
/// first, -1 for one at 0000.
struct Block {
  std::int32_t first;
  std::int32_t last;
};

/// Whether an end of one block lies in the other. An empty block counts with both its ends.
bool Overlap(const Block& a, const Block& b);

/// The first pair of blocks that overlap, in order of the lower and then of the higher position;
/// nothing if none do.
std::optional<std::pair<int, int>> FirstOverlap(const std::vector<Block>& blocks);

}  // namespace quilla

#endif  // QUILLA_SYMBOLS_BLOCKS_H_
