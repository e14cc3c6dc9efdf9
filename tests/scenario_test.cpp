// Every scenario of tests/scenarios/, played on the models.
#include "scenario.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "robot/robot.h"

namespace quilla::robot {
namespace {

const std::filesystem::path kScenarios =
    std::filesystem::path(QUILLA_SOURCE_DIR) / "tests" / "scenarios";

class ScenarioTest : public testing::TestWithParam<Scenario> {};

TEST_P(ScenarioTest, GivesItsTranscript) {
  const ScratchFolder folder(kScenarios / "files");
  std::istringstream script(GetParam().script);
  std::ostringstream transcript;
  std::ostringstream errors;
  EXPECT_EQ(RunScript(script, transcript, errors), kPlayed) << errors.str();
  const std::string difference = FirstDifference(GetParam().transcript, transcript.str());
  EXPECT_TRUE(difference.empty()) << difference;
}

INSTANTIATE_TEST_SUITE_P(All, ScenarioTest, testing::ValuesIn(ScenariosIn(kScenarios)),
                         [](const auto& scenario) { return scenario.param.name; });

}  // namespace
}  // namespace quilla::robot
