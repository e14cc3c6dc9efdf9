#include "platform/text_list.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/failure_of.h"

namespace quilla {
namespace {

TEST(TextListTest, WritingAtTheEndAppendsAndBeyondFails) {
  TextList list(nullptr, "List");
  list.Set(0, "a");
  list.Set(1, "b");
  list.Set(0, "c");
  EXPECT_EQ(list.items(), (std::vector<std::string>{"c", "b"}));
  EXPECT_EQ(list.Find("b"), 1);
  EXPECT_EQ(list.Find("B"), -1);
  const std::function<void()> outside[] = {
      [&] { list.Set(3, "x"); }, [&] { list.Set(-1, "x"); }, [&] { list.Remove(2); },
      [&] { list.Remove(-1); },  [&] { list[2]; },           [&] { list[-1]; },
  };
  for (const auto& operation : outside) EXPECT_EQ(FailureOf(operation), ErrorNumber::kOutsideList);
  EXPECT_EQ(list.Count(), 2);
}

TEST(ComboBoxTest, ChoiceFollowsItsEntry) {
  const std::vector<bool> doomed = {true, true, false, true};
  const struct {
    int chosen;
    int index;  // after the change
    std::string text;
    std::function<void(ComboBox&)> change;
  } cases[] = {
      {2, 2, "c", [](ComboBox& list) { list.Add("e"); }},
      {2, 1, "c", [](ComboBox& list) { list.Remove(0); }},
      {2, 2, "c", [](ComboBox& list) { list.Remove(3); }},
      {2, -1, "", [](ComboBox& list) { list.Remove(2); }},
      {2, 0, "c", [&](ComboBox& list) { list.RemoveMarked(doomed); }},
      {1, -1, "", [&](ComboBox& list) { list.RemoveMarked(doomed); }},
      {2, 2, "C", [](ComboBox& list) { list.Set(2, "C"); }},
      {2, -1, "", [](ComboBox& list) { list.Clear(); }},
      {2, 0, "a", [](ComboBox& list) { list.SelectFirst(); }},
  };
  int number = 0;
  for (const auto& [chosen, index, text, change] : cases) {
    ComboBox list(nullptr, "Combo");
    list.Assign({"a", "b", "c", "d"});
    list.Select(chosen);
    change(list);
    EXPECT_EQ(list.index(), index) << "case " << number;
    EXPECT_EQ(list.text(), text) << "case " << number++;
  }
}

}  // namespace
}  // namespace quilla
