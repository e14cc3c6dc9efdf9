// Every scenario of tests/scenarios/, played on the real widgets: the transcript is the same as on
// the models, and whenever the state is printed the widgets show what the models hold.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <sstream>

#include "robot/robot.h"
#include "scenario.h"
#include "window/widget_check.h"
#include "window/widget_hands.h"

namespace quilla::robot {
namespace {

const std::filesystem::path kScenarios =
    std::filesystem::path(QUILLA_SOURCE_DIR) / "tests" / "scenarios";

class ComparingHands : public WidgetHands {
 public:
  using WidgetHands::WidgetHands;

  void OnState() override {
    for (const auto& [form, window] : shown()) {
      const QStringList lines = DifferencesFromModels(*window.mirror, *window.window);
      EXPECT_TRUE(lines.isEmpty()) << lines.join('\n').toStdString();
    }
  }
};

class ScenarioWindowTest : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(ScenarioWindowTest, GivesItsTranscript) {
  const Scenario scenario = ReadScenario(GetParam());
  const ScratchFolder folder(kScenarios / "files");
  std::istringstream script(scenario.script);
  std::ostringstream transcript;
  std::ostringstream errors;
  Robot robot(script, transcript, errors, [](Quilla&, ScriptedEventLoop& event_loop) {
    return std::make_unique<ComparingHands>(event_loop);
  });
  EXPECT_EQ(robot.Play(), kPlayed) << errors.str();
  EXPECT_EQ(FirstDifference(scenario.transcript, transcript.str()), "");
}

std::string TestName(const testing::TestParamInfo<std::filesystem::path>& scenario) {
  std::string name = scenario.param.stem().string();
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, ScenarioWindowTest, testing::ValuesIn(ScenariosIn(kScenarios)),
                         TestName);

}  // namespace
}  // namespace quilla::robot
