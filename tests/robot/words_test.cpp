#include "robot/words.h"

#include <gtest/gtest.h>

#include <limits>
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

TEST(WordsTest, QuotesThatCannotBeReadAreNoCommand) {
  for (const std::string_view line : {R"(feed ")", R"(feed "a\")", R"(feed "a"b)", R"(feed "\q")",
                                      R"(feed "\x4")", R"(feed "\xG0")", R"(feed "\x)"}) {
    EXPECT_THROW(CommandsOf(line), NotACommand) << line;
  }
}

TEST(WordsTest, NumbersAreDecimalAndEndAtTheWidthOfAnInt) {
  using Limits = std::numeric_limits<int>;
  Words words = CommandsOf("12 -3 99999999999 -99999999999").front();
  for (const int number : {12, -3, Limits::max(), Limits::min()}) {
    EXPECT_EQ(words.TakeNumber(), number);
  }
  for (const std::string_view bad : {"", "\"\"", "1x", "x", "+1", "0x10", "99999999999x"}) {
    EXPECT_THROW(CommandsOf(bad).front().TakeNumber(), NotACommand) << bad;
  }
}

TEST(QuotedTest, EscapesWhatWouldNotStandAsItself) {
  EXPECT_EQ(Quoted("a \"b\" \\ \r\n\t"), R"("a \"b\" \\ \r\n\t")");
  EXPECT_EQ(Quoted(std::string("\0\x1F \x7E\x7F\x80\xFF", 7)), "\"\\x00\\x1F \x7E\x7F\\x80\\xFF\"");
}

}  // namespace
}  // namespace quilla::robot
