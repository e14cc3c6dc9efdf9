// Every scenario of tests/scenarios/, played on the models.
#include "scenario.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <sstream>
#include <string>

#include "robot/robot.h"

namespace quilla::robot {
namespace {

const std::filesystem::path kScenarios =
    std::filesystem::path(QUILLA_SOURCE_DIR) / "tests" / "scenarios";

class ScenarioTest : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(ScenarioTest, GivesItsTranscript) {
  const Scenario scenario = ReadScenario(GetParam());
  const ScratchFolder folder(kScenarios / "files");
  std::istringstream script(scenario.script);
  std::ostringstream transcript;
  std::ostringstream errors;
  EXPECT_EQ(RunScript(script, transcript, errors), kPlayed) << errors.str();
  const std::string difference = FirstDifference(scenario.transcript, transcript.str());
  EXPECT_TRUE(difference.empty()) << difference;
}

std::string TestName(const testing::TestParamInfo<std::filesystem::path>& scenario) {
  std::string name = scenario.param.stem().string();
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, ScenarioTest, testing::ValuesIn(ScenariosIn(kScenarios)), TestName);

}  // namespace
}  // namespace quilla::robot
