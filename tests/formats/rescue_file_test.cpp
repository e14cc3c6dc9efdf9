// Unsaved work where nobody can be asked: it is in a rescue file, and a save removes that.
#include "formats/rescue_file.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <thread>

#include "panel/running_program.h"
#include "robot/robot.h"
#include "scenario.h"
#include "system/end_requests.h"

namespace quilla {
namespace {

class RescueFileTest : public testing::Test {
 protected:
  void SetUp() override { setenv("XDG_STATE_HOME", folder_.path().c_str(), 1); }
  void TearDown() override { unsetenv("XDG_STATE_HOME"); }

  /// Plays a script, ends it from outside where it waits for more, and gives the name of the rescue
  /// file that is told.
  static std::string RescueOf(const std::string& commands) {
    std::istringstream script(commands);
    std::ostringstream transcript;
    robot::Robot robot(script, transcript, transcript);
    robot.must_end = [&] { return script.eof(); };
    testing::internal::CaptureStderr();
    robot.Play();
    const std::string told = testing::internal::GetCapturedStderr();
    return told.substr(told.find_last_of('/') + 1);
  }
  static bool IsThere(const std::string& path) { return std::filesystem::exists(path); }

  robot::ScratchFolder folder_{"no files"};
};

TEST_F(RescueFileTest, StandsBesideTheProjectUntilThatIsSaved) {
  EXPECT_EQ(RescueOf("click SaveFile\n"), "") << "nothing to lose";
  EXPECT_EQ(RescueOf("row HLT\n"), "Pgm1.baf.rescue\n");
  EXPECT_EQ(RescueOf("row NOP ; answer yes ; click DownloadFile\n"), "Pgm1.baf.rescue2\n");
  EXPECT_EQ(RescueOf("path p.baf ; click SaveAsFile ; row HLT\n"), "p.baf.rescue\n");
  RunningProgram program;
  program.Open("p.baf.rescue");
  EXPECT_EQ(program.session().Table1.TextMatrix(1, kOpcodeColumn), "76");
  program.Choose(program.session().menu.SaveFile);
  EXPECT_TRUE(IsThere("p.baf.rescue")) << "it is the project now";
  program.SaveAs("q.baf");
  EXPECT_FALSE(IsThere("p.baf.rescue"));
  program.Open("quilla/Pgm1.baf.rescue2");
  program.Choose(program.session().menu.NewFile);
  std::ofstream("p.baf.rescue");
  program.SaveAs("p.baf");
  EXPECT_FALSE(IsThere("p.baf.rescue"));
  EXPECT_TRUE(IsThere("quilla/Pgm1.baf.rescue2")) << "of other work";
}

#ifndef _WIN32
TEST_F(RescueFileTest, IsThereBeforeAnAssemblingThatNeverEnds) {
  const auto assemble = [] {
    const EndRequests requests(EndRequests::Input::kGoesOn);
    std::thread([] {
      while (!IsThere("quilla/Pgm1.baf.rescue")) std::this_thread::yield();
      std::raise(SIGTERM);
    }).detach();
    RunningProgram program;
    program.session().Table1.SetTextMatrix(0, kAddressColumn, "0FFF");
    program.session().Table1.SetTextMatrix(1, kOpcodeColumn, "76");
    program.session().FileChanged = true;
    program.Choose(program.session().menu.AssembleFile);
  };
  EXPECT_EXIT(assemble(), testing::KilledBySignal(SIGTERM), "unsaved work is in .*Pgm1.baf.rescue");
}
#endif

}  // namespace
}  // namespace quilla
