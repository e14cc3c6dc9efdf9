#include "platform/characters.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "platform/text_box.h"

namespace quilla {
namespace {

TEST(CharactersTest, BytesThatAreNoCharacterStandAlone) {
  const std::vector<std::vector<std::string>> texts = {
      {},
      {"a", "b"},
      {"\xC3\xA9", "a", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"},  // 2, 1, 3 and 4 bytes
      {"\x80", "a"},                                          // continues nothing
      {"\xE2", "\x82"},                                       // cut off at the end
      {"\xE2", "a", "\x82"},                                  // cut off by another
      {"\xC0", "\xAF", "\xC1", "\x81"},                       // longer than need be
      {"\xF5", "\x80", "\x80", "\x80", "\xFF"},               // beyond the last character
      {"\xC3", "\xC3\xA9"},                                   // a first byte before another
  };
  for (const auto& characters : texts) {
    std::string text;
    for (const std::string& character : characters) text += character;
    EXPECT_EQ(SplitCharacters(text), characters);
    EXPECT_EQ(CharacterLength(text), characters.empty() ? 0 : characters.front().size());
  }
}

TEST(TextBoxTest, LimitCountsCharactersAndChangesAreHeardOnce) {
  TextBox box(nullptr, "Box", 3);
  int changes = 0;
  box.TextChange = [&] { ++changes; };
  box.set_text("\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9");
  EXPECT_EQ(box.text(), "\xC3\xA9\xC3\xA9\xC3\xA9");
  box.Type("a");
  box.set_text(box.text());
  EXPECT_EQ(changes, 1);
  box.set_text("b");
  box.Type("c");
  EXPECT_EQ(box.text(), "bc");
  EXPECT_EQ(changes, 3);
}

}  // namespace
}  // namespace quilla
