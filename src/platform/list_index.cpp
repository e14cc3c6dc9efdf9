#include "platform/list_index.h"

#include <bit>
#include <functional>

namespace quilla {

ListIndex::ListIndex(const TextList& list) : list_(list) {
  MakeSlots();
  CatchUp();
}

void ListIndex::CatchUp() {
  if (2 * size() > slots_.size()) {
    MakeSlots();
    known_ = 0;
  }
  for (; known_ < list_.Count(); ++known_) Add(known_);
}

void ListIndex::MakeSlots() {
  constexpr std::size_t kRoom = 4;  // for each text, so that it may grow a while
  slots_.assign(std::bit_ceil(kRoom * (size() + 1)), kNone);
}

void ListIndex::Add(int position) {
  int& slot = slots_[SlotOf(list_[position])];
  if (slot == kNone) slot = position;
}

std::size_t ListIndex::SlotOf(std::string_view text) const {
  const std::size_t last = slots_.size() - 1;
  std::size_t slot = std::hash<std::string_view>()(text) & last;
  while (slots_[slot] != kNone && list_.items()[static_cast<std::size_t>(slots_[slot])] != text) {
    slot = (slot + 1) & last;
  }
  return slot;
}

}  // namespace quilla
