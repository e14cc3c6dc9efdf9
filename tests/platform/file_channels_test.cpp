#include "platform/file_channels.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "platform/failure_of.h"
#include "scenario.h"

namespace quilla {
namespace {

constexpr int kChannel = 1;

class FileChannelsTest : public testing::Test {
 protected:
  static void Write(const std::string& content) {
    std::ofstream("file", std::ios::binary) << content;
  }
  /// All items of a file of this content.
  std::vector<std::string> Items(const std::string& content) {
    Write(content);
    channels_.OpenInput(kChannel, "file");
    std::vector<std::string> items;
    while (FailureOf([&] { items.push_back(channels_.ReadText(kChannel)); }) !=
           ErrorNumber::kPastEndOfFile) {
    }
    channels_.Close(kChannel);
    return items;
  }

  robot::ScratchFolder folder_{"no files"};
  FileChannels channels_;
};

TEST_F(FileChannelsTest, ItemsEndWhereTheirFormSays) {
  const struct {
    std::string content;
    std::vector<std::string> items;
  } cases[] = {
      {"", {}},
      {",", {""}},
      {"a,b\r\nc\rd\ne", {"a", "b", "c", "d", "e"}},
      {"a\r\n\r\nb\n\rc", {"a", "", "b", "", "c"}},
      {"a,,b", {"a", "", "b"}},
      {"\"a,b\r\nc\",\"\"\r\n\"d\"", {"a,b\r\nc", "", "d"}},
      {R"("a"b,"c""d")", {"a", "b", "c", "d"}},
      {R"(a"b"c)", {R"(a"b"c)"}},
      {R"("a" ,b)", {"a", " ", "b"}},
      {"\"never closed,\r\n1", {"never closed,\r\n1"}},
      {"\"", {""}},
      {std::string("z\0\xFF\x1A,y", 6), {std::string("z\0\xFF\x1A", 4), "y"}},
      // A line end that the end of a block of 262,144 bytes cuts in two.
      {std::string(262'143, 'x') + "\r\n\"" + std::string(262'140, ',') + "\"\r\n1",
       {std::string(262'143, 'x'), std::string(262'140, ','), "1"}},
  };
  for (const auto& [content, items] : cases) {
    EXPECT_EQ(Items(content), items) << content.substr(0, 40);
  }
}

TEST_F(FileChannelsTest, NumbersFitTheirWidth) {
  const struct {
    std::string text;
    std::optional<ErrorNumber> in16;
    std::optional<ErrorNumber> in32;
  } cases[] = {
      {"-32768", {}, {}},
      {"\"12\"", {}, {}},
      {"32768", ErrorNumber::kOverflow, {}},
      {"2147483648", ErrorNumber::kOverflow, ErrorNumber::kOverflow},
      {" 1", ErrorNumber::kNotANumber, ErrorNumber::kNotANumber},
      {"1A", ErrorNumber::kNotANumber, ErrorNumber::kNotANumber},
      {"\"\"", ErrorNumber::kNotANumber, ErrorNumber::kNotANumber},
  };
  for (const auto& [text, in16, in32] : cases) {
    Write(std::string(text).append(",").append(text));
    channels_.OpenInput(kChannel, "file");
    EXPECT_EQ(FailureOf([&] { channels_.ReadNumber16(kChannel); }), in16) << text;
    EXPECT_EQ(FailureOf([&] { channels_.ReadNumber32(kChannel); }), in32) << text;
    EXPECT_EQ(FailureOf([&] { channels_.ReadNumber32(kChannel); }), ErrorNumber::kPastEndOfFile);
    channels_.Close(kChannel);
  }
}

TEST_F(FileChannelsTest, FilesThatCannotBeOpenedLeaveTheChannelClosed) {
  std::filesystem::create_directory("folder");
  for (const std::string path : {"", "missing", "missing/file", "file\xFF/x"}) {
    EXPECT_EQ(FailureOf([&] { channels_.OpenInput(kChannel, path); }), ErrorNumber::kFileNotFound);
    EXPECT_FALSE(channels_.IsOpen(kChannel)) << path;
  }
  for (const std::string path : {"", "missing/file", "folder"}) {
    EXPECT_EQ(FailureOf([&] { channels_.OpenOutput(kChannel, path); }), ErrorNumber::kFileNotFound);
    EXPECT_FALSE(channels_.IsOpen(kChannel)) << path;
  }
  // A folder may open where the system lets it; it holds no items.
  EXPECT_TRUE(FailureOf([&] {
    channels_.OpenInput(kChannel, "folder");
    channels_.ReadText(kChannel);
  }));
}

TEST_F(FileChannelsTest, DiskThatTakesNothingFailsTheClose) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  channels_.OpenOutput(kChannel, "/dev/full");
  channels_.WriteLine(kChannel, {FileItem::Text("short")});
  EXPECT_EQ(FailureOf([&] { channels_.Close(kChannel); }), ErrorNumber::kWriteFailed);
  EXPECT_FALSE(channels_.IsOpen(kChannel));
}

}  // namespace
}  // namespace quilla
