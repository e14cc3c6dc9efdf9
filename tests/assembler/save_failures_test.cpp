// Saving where the disk does not play along: full, or not to be written to. What was to be saved
// is kept, and the next try works.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>

#include "panel/programming_panel.h"
#include "robot/scripted_outside.h"
#include "scenario.h"

namespace quilla {
namespace {

namespace fs = std::filesystem;

constexpr const char* kDisk = "disk";
constexpr const char* kRefusal = "box critical \"Unable to save file.\" ok -> ok\n";

/// A disk of one megabyte in the folder `disk`, where the user may mount one.
class SmallDisk {
 public:
  SmallDisk() {
    fs::create_directory(kDisk);
    mounted_ = Run("mount -t tmpfs -o size=1m tmpfs disk");
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  SmallDisk(SmallDisk&&) = delete;
  SmallDisk& operator=(SmallDisk&&) = delete;
  ~SmallDisk() {
    if (mounted_) Run("umount -l disk");  // lazily: a failed test may have left a file open
  }

  bool mounted() const { return mounted_; }
  static bool SetReadOnly(bool read_only) {
    return Run(read_only ? "mount -o remount,ro disk" : "mount -o remount,rw disk");
  }

 private:
  static bool Run(const std::string& command) {
    return std::system((command + " >/dev/null 2>&1").c_str()) == 0;
  }

  bool mounted_;
};

class SaveFailuresTest : public testing::Test {
 protected:
  SaveFailuresTest() {
    // Long enough that the disk refuses a write before it refuses the close.
    constexpr int kRows = 5000;
    session_.Table1.SetRows(kRows);
    session_.StringTable.SetRows(kRows);
    for (int row = 1; row < kRows; ++row) {
      session_.Table1.SetTextMatrix(row, kMnemonicColumn, "NOP");
      session_.Table1.SetTextMatrix(row, kOpcodeColumn, "00");
    }
    session_.FileChanged = true;
    Ask(session_.menu.AssembleFile, std::nullopt);
  }

  /// Chooses a menu entry, with a path for the file dialog; gives the message boxes that came,
  /// but for the one that each assembly shows.
  std::string Ask(MenuEntry& entry, const std::optional<std::string>& path) {
    outside_.file_dialogs.Queue(path);
    transcript_.str({});
    entry.Choose();
    std::istringstream lines(transcript_.str());
    std::string boxes;
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with("box critical")) boxes += line + '\n';
    }
    return boxes;
  }

  /// Both kinds of save are refused, and nothing is lost.
  void ExpectRefusals(const std::string& folder) {
    const auto image = session_.HexList.items();
    EXPECT_EQ(Ask(session_.menu.AssembleFile, folder + "/a.hex"), kRefusal);
    EXPECT_EQ(session_.HexList.items(), image);
    EXPECT_EQ(Ask(session_.menu.SaveFile, folder + "/a.baf"), kRefusal);
    EXPECT_TRUE(session_.FileChanged);
    EXPECT_EQ(session_.CurrentPanelState, PanelState::kReady);
    EXPECT_EQ(session_.Table1.TextMatrix(1, kMnemonicColumn), "NOP");
  }

  void ExpectSaves(const std::string& folder) {
    EXPECT_EQ(Ask(session_.menu.AssembleFile, folder + "/a.hex"), "");
    std::ifstream file(folder + "/a.hex", std::ios::binary);
    std::string image;
    for (const std::string& record : session_.HexList.items()) image += '"' + record + "\"\r\n";
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), image);
    EXPECT_EQ(Ask(session_.menu.SaveFile, folder + "/a.baf"), "");
    EXPECT_FALSE(session_.FileChanged);
  }

  robot::ScratchFolder folder_{"no files"};
  std::ostringstream transcript_;
  robot::ScriptedOutside outside_{transcript_};
  ProgrammingPanel panel_{outside_.ports};
  Session& session_ = panel_.session();
};

TEST_F(SaveFailuresTest, FullDisk) {
  const SmallDisk disk;
  if (!disk.mounted()) GTEST_SKIP() << "no disk may be mounted here";
  std::ofstream("disk/filler") << std::string(2'000'000, 'x');
  ExpectRefusals(kDisk);
  fs::remove("disk/filler");
  ExpectSaves(kDisk);
}

TEST_F(SaveFailuresTest, DeviceThatIsAlwaysFull) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "there is none";
  fs::create_directory(kDisk);
  fs::create_symlink("/dev/full", "disk/a.hex");
  fs::create_symlink("/dev/full", "disk/a.baf");
  ExpectRefusals(kDisk);
  fs::remove("disk/a.hex");
  fs::remove("disk/a.baf");
  ExpectSaves(kDisk);
}

TEST_F(SaveFailuresTest, ReadOnlyDisk) {
  const SmallDisk disk;
  const bool read_only = disk.mounted() && SmallDisk::SetReadOnly(true);
  if (!read_only) GTEST_SKIP() << "no disk may be mounted here";
  ExpectRefusals(kDisk);
  EXPECT_TRUE(SmallDisk::SetReadOnly(false));
  ExpectSaves(kDisk);
}

TEST_F(SaveFailuresTest, FolderThatMayNotBeWritten) {
  fs::create_directory(kDisk);
  fs::permissions(kDisk, fs::perms::owner_read | fs::perms::owner_exec);
  if (std::ofstream("disk/probe")) {
    fs::permissions(kDisk, fs::perms::owner_all);
    GTEST_SKIP() << "this user may write everywhere";
  }
  ExpectRefusals(kDisk);
  fs::permissions(kDisk, fs::perms::owner_all);
  ExpectSaves(kDisk);
}

}  // namespace
}  // namespace quilla
