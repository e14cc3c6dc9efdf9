// An ordered list of texts, and the drop-down list that lets the user choose one of them.
#ifndef QUILLA_PLATFORM_TEXT_LIST_H_
#define QUILLA_PLATFORM_TEXT_LIST_H_

#include <functional>
#include <string>
#include <vector>

#include "platform/control.h"

namespace quilla {

class TextList : public Control {
 public:
  using Control::Control;

  int Count() const { return static_cast<int>(items_.size()); }
  bool IsEmpty() const { return items_.empty(); }
  const std::vector<std::string>& items() const { return items_; }
  /// The text at `position`. Fails with `kOutsideList` outside 0 to Count() - 1.
  const std::string& operator[](int position) const;
  /// Writes the text at `position`; at Count() it is appended. Fails beyond that.
  void Set(int position, std::string text);
  void Add(std::string text);
  /// Replaces all texts.
  void Assign(std::vector<std::string> items);
  /// Removes the text at `position`. Fails with `kOutsideList` where there is none.
  void Remove(int position);
  /// Removes every text whose position is marked in `doomed`; texts beyond its end stay.
  void RemoveMarked(const std::vector<bool>& doomed);
  virtual void Clear();
  /// The position of the first equal text, or -1.
  int Find(const std::string& text) const;

 protected:
  /// Told before the text at `position` goes.
  virtual void AboutToRemove(int /*position*/) {}

 private:
  std::vector<std::string> items_;
};

class ComboBox : public TextList {
 public:
  using TextList::TextList;

  static constexpr int kNothingChosen = -1;

  /// The position of the chosen text, or kNothingChosen.
  int index() const { return chosen_; }
  /// Chooses an entry from code; no handler runs. Fails with `kOutsideList` where there is none.
  void Select(int position);
  /// Chooses the first entry, if there is one.
  void SelectFirst();
  /// The chosen text, empty if none is chosen.
  const std::string& text() const;
  /// The user chose an entry: it is selected and the handler runs.
  void Pick(int position);
  void Clear() override;

  /// Whether the list looks like a live input. It says nothing about `enabled`.
  bool active() const { return active_; }
  void set_active(bool active) { Change(active_, active, Property::kActive); }

  std::function<void()> Click;

 protected:
  void AboutToRemove(int position) override;

 private:
  int chosen_ = kNothingChosen;
  bool active_ = true;
};

}  // namespace quilla

#endif  // QUILLA_PLATFORM_TEXT_LIST_H_
