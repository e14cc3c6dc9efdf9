#include "robot/words.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quilla::robot {
namespace {

std::vector<std::string> AllWords(std::string_view line) {
  std::vector<std::string> all;
  for (Words words = CommandsOf(line).front(); words.AreLeft();) all.push_back(words.Take());
  return all;
}

TEST(WordsTest, AreSeparatedByBlanksAndMayStandInQuotes) {
  using List = std::vector<std::string>;
  const struct {
    std::string_view line;
    List words;
  } cases[] = {
      {"click INST 0", {"click", "INST", "0"}},
      {"  click\t INST  ", {"click", "INST"}},
      {R"(type XXText "two words")", {"type", "XXText", "two words"}},
      {R"(type XXText "")", {"type", "XXText", ""}},
      {R"(feed "\"\\\r\n\t\x41\xfF")", {"feed", "\"\\\r\n\tA\xFF"}},
      {R"(path C:\new\x.baf)", {"path", R"(C:\new\x.baf)"}},
      {R"(path a"b)", {"path", R"(a"b)"}},
  };
  for (const auto& [line, words] : cases) EXPECT_EQ(AllWords(line), words) << line;
}

TEST(QuotedTest, EscapesWhatWouldNotStandAsItself) {
  EXPECT_EQ(Quoted("a \"b\" \\ \r\n\t"), R"("a \"b\" \\ \r\n\t")");
  EXPECT_EQ(Quoted(std::string("\0\x1F \x7E\x7F\x80\xFF", 7)), "\"\\x00\\x1F \x7E\x7F\\x80\\xFF\"");
}

}  // namespace
}  // namespace quilla::robot
