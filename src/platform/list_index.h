// Where each text of a list stands, for the passes that look many names up.
#ifndef QUILLA_PLATFORM_LIST_INDEX_H_
#define QUILLA_PLATFORM_LIST_INDEX_H_

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/text_list.h"

namespace quilla {

/// A hash table of nothing but positions: with a few thousand names it stays in the nearest memory,
/// and is made in a fraction of the time that a map of texts takes.
class ListIndex {
 public:
  static constexpr int kNone = -1;

  /// The list must outlive the index and keep its texts, but may grow.
  explicit ListIndex(const TextList& list);

  /// The position of the first of equal texts, or kNone.
  int Find(std::string_view text) const { return slots_[SlotOf(text)]; }
  bool Contains(std::string_view text) const { return Find(text) != kNone; }
  /// The number of texts in the list.
  std::size_t size() const { return list_.items().size(); }
  /// Takes in what has been added to the list.
  void CatchUp();

 private:
  void MakeSlots();
  void Add(int position);
  /// The slot with the position of the text, or the empty one where it would be.
  std::size_t SlotOf(std::string_view text) const;

  const TextList& list_;
  int known_ = 0;           // so many texts of the list are in the index
  std::vector<int> slots_;  // a power of two of them, half of them empty at least
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_LIST_INDEX_H_
