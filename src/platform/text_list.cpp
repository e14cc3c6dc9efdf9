#include "platform/text_list.h"

#include <algorithm>
#include <utility>

#include "platform/dispatch.h"
#include "platform/failure.h"

namespace quilla {

const std::string& TextList::operator[](int position) const {
  if (position < 0 || position >= Count()) throw Failure(ErrorNumber::kOutsideList);
  return items_[static_cast<std::size_t>(position)];
}

void TextList::Set(int position, std::string text) {
  if (position == Count()) {
    Add(std::move(text));
    return;
  }
  if (position < 0 || position > Count()) throw Failure(ErrorNumber::kOutsideList);
  Change(items_[static_cast<std::size_t>(position)], std::move(text), Property::kItems);
}

void TextList::Add(std::string text) {
  items_.push_back(std::move(text));
  Notify(Property::kItems);
}

void TextList::Assign(std::vector<std::string> items) {
  Clear();
  items_ = std::move(items);
  Notify(Property::kItems);
}

void TextList::Remove(int position) {
  if (position < 0 || position >= Count()) throw Failure(ErrorNumber::kOutsideList);
  AboutToRemove(position);
  items_.erase(items_.begin() + position);
  Notify(Property::kItems);
}

void TextList::RemoveMarked(const std::vector<bool>& doomed) {
  for (int position = Count() - 1; position >= 0; --position) {
    if (static_cast<std::size_t>(position) < doomed.size() &&
        doomed[static_cast<std::size_t>(position)]) {
      AboutToRemove(position);
    }
  }
  std::size_t kept = 0;
  for (std::size_t position = 0; position < items_.size(); ++position) {
    if (position >= doomed.size() || !doomed[position]) std::swap(items_[kept++], items_[position]);
  }
  items_.resize(kept);
  Notify(Property::kItems);
}

void TextList::Clear() {
  items_.clear();
  Notify(Property::kItems);
}

int TextList::Find(const std::string& text) const {
  const auto found = std::find(items_.begin(), items_.end(), text);
  return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void ComboBox::Select(int position) {
  if (position < kNothingChosen || position >= Count()) throw Failure(ErrorNumber::kOutsideList);
  Change(chosen_, position, Property::kIndex);
}

void ComboBox::SelectFirst() {
  if (!IsEmpty()) Select(0);
}

const std::string& ComboBox::text() const {
  static const std::string kNothing;
  return chosen_ == kNothingChosen ? kNothing : (*this)[chosen_];
}

void ComboBox::Pick(int position) {
  Select(position);
  Dispatch(Click);
}

void ComboBox::Clear() {
  Change(chosen_, kNothingChosen, Property::kIndex);
  TextList::Clear();
}

void ComboBox::AboutToRemove(int position) {
  if (position == chosen_) {
    Change(chosen_, kNothingChosen, Property::kIndex);
  } else if (position < chosen_) {
    Change(chosen_, chosen_ - 1, Property::kIndex);
  }
}

}  // namespace quilla
