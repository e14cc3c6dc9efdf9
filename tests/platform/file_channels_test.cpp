#include "platform/file_channels.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "panel/running_program.h"
#include "platform/failure_of.h"
#include "scenario.h"
#include "system/disk_storage.h"

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
    while (FailureOf([&] { items.emplace_back(channels_.ReadText(kChannel)); }) !=
           ErrorNumber::kPastEndOfFile) {
    }
    channels_.Close(kChannel);
    return items;
  }

  robot::ScratchFolder folder_{"no files"};
  DiskStorage disk_;
  FileChannels channels_{disk_};
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
  for (const std::string path : {"", "missing", "missing/file", "file\xFF/x"}) {
    EXPECT_EQ(FailureOf([&] { channels_.OpenInput(kChannel, path); }), ErrorNumber::kFileNotFound);
    EXPECT_FALSE(channels_.IsOpen(kChannel)) << path;
  }
  for (const std::string path : {"", "missing/file"}) {
    EXPECT_EQ(FailureOf([&] { channels_.OpenOutput(kChannel, path); }), ErrorNumber::kFileNotFound);
    EXPECT_FALSE(channels_.IsOpen(kChannel)) << path;
  }
}

TEST_F(FileChannelsTest, WhatIsNoRegularFileIsNeitherOpenedNorWaitedFor) {
  if (std::system("mkfifo pipe") != 0) GTEST_SKIP() << "no named pipes";
  std::filesystem::create_directory("folder");
  std::filesystem::create_symlink("/dev/full", "device");
  for (const std::string path : {"pipe", "device", "folder"}) {
    EXPECT_EQ(FailureOf([&] { channels_.OpenInput(kChannel, path); }), ErrorNumber::kFileNotFound);
    EXPECT_EQ(FailureOf([&] { channels_.OpenOutput(kChannel, path); }), ErrorNumber::kFileNotFound);
    EXPECT_FALSE(std::filesystem::exists(path + '~'));
  }
}

TEST_F(FileChannelsTest, ACopyKeepsWhatIsReplacedUntilItIsWritten) {
  namespace fs = std::filesystem;
  const auto replace = [this](const std::string& copy) {
    Write("old");
    channels_.OpenOutput(kChannel, "link");
    EXPECT_EQ(BytesOf("file"), "");
    EXPECT_EQ(BytesOf(copy), "old");
    EXPECT_EQ(fs::status(copy).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    channels_.Write(kChannel, "new");
    channels_.Close(kChannel);
    EXPECT_EQ(BytesOf("hard"), "new");
    EXPECT_TRUE(fs::is_symlink("link"));
    return fs::exists(copy);
  };
  Write("");
  fs::permissions("file", fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("file", "link");
  fs::create_hard_link("file", "hard");
  EXPECT_FALSE(replace("file~"));
  channels_.OpenInput(kChannel, "file");
  channels_.Abandon(kChannel);
  EXPECT_TRUE(replace("file~")) << "nobody could read what it holds";
  EXPECT_FALSE(replace("file~~")) << "the name is taken";
  EXPECT_TRUE(fs::exists("file~"));
  EXPECT_TRUE(disk_.Rename("file~", "file"));
  EXPECT_FALSE(fs::exists("file~"));
}

}  // namespace
}  // namespace quilla
