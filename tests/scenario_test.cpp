// Every scenario of tests/scenarios/, played on the models.
#include "scenario.h"

#include <gtest/gtest.h>

#include <sstream>

#include "robot/robot.h"

namespace quilla::robot {
namespace {

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

INSTANTIATE_TEST_SUITE_P(All, ScenarioTest, testing::ValuesIn(AllScenarios()),
                         [](const auto& scenario) { return scenario.param.name; });

}  // namespace
}  // namespace quilla::robot
