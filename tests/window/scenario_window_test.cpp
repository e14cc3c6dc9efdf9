// Every scenario of tests/scenarios/, played on the real widgets: the transcript is the same as on
// the models, and whenever the state is printed the widgets show what the models hold.
#include <gtest/gtest.h>

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

class ScenarioWindowTest : public testing::TestWithParam<Scenario> {};

TEST_P(ScenarioWindowTest, GivesItsTranscript) {
  const ScratchFolder folder(kScenarios / "files");
  std::istringstream script(GetParam().script);
  std::ostringstream transcript;
  std::ostringstream errors;
  Robot robot(script, transcript, errors, [](Quilla&, ScriptedEventLoop& event_loop) {
    return std::make_unique<ComparingHands>(event_loop);
  });
  EXPECT_EQ(robot.Play(), kPlayed) << errors.str();
  EXPECT_EQ(FirstDifference(GetParam().transcript, transcript.str()), "");
}

INSTANTIATE_TEST_SUITE_P(All, ScenarioWindowTest, testing::ValuesIn(ScenariosIn(kScenarios)),
                         [](const auto& scenario) { return scenario.param.name; });

}  // namespace
}  // namespace quilla::robot
