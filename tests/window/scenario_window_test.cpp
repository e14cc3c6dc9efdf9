// Every scenario of tests/scenarios/, and made-up scripts, played on the real widgets: the
// transcript is the same as on the models, the widgets show what the models hold, and the table
// changes as Qt asks of an item model.
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <memory>
#include <sstream>

#include "robot/robot.h"
#include "scenario.h"
#include "walk/walk.h"
#include "window/widget_check.h"
#include "window/widget_hands.h"

namespace quilla::robot {
namespace {

class CheckedHands : public WidgetHands {
 public:
  using WidgetHands::WidgetHands;

  std::string Differences() const {
    QStringList lines;
    for (const auto& [form, window] : shown()) {
      lines << DifferencesFromModels(*window.mirror, *window.window);
      auto* const table = window.window->findChild<GridView*>("Table1");
      if (table == nullptr || table->findChild<QAbstractItemModelTester*>() != nullptr) continue;
      using Report = QAbstractItemModelTester::FailureReportingMode;
      new QAbstractItemModelTester(table->model(), Report::Fatal, table);
    }
    return lines.join(u'\n').toStdString();
  }
  void OnState() override { EXPECT_EQ(Differences(), ""); }
};

class ScenarioWindowTest : public testing::TestWithParam<Scenario> {};

TEST_P(ScenarioWindowTest, GivesItsTranscript) {
  const ScratchFolder folder(kScenarios / "files");
  std::istringstream script(GetParam().script);
  std::ostringstream transcript;
  std::ostringstream errors;
  Robot robot(script, transcript, errors, [](Quilla&, ScriptedEventLoop& event_loop) {
    return std::make_unique<CheckedHands>(event_loop);
  });
  EXPECT_EQ(robot.Play(), kPlayed) << errors.str();
  EXPECT_EQ(FirstDifference(GetParam().transcript, transcript.str()), "");
}

INSTANTIATE_TEST_SUITE_P(All, ScenarioWindowTest, testing::ValuesIn(AllScenarios()),
                         [](const auto& scenario) { return scenario.param.name; });

TEST(WalkWindowTest, WidgetsShowTheModelsWhateverTheUserDoes) {
  walk::TellScriptOnDeath();
  for (unsigned seed = 1001; seed <= 1012; ++seed) {
    CheckedHands* hands = nullptr;
    const auto make_hands = [&](Quilla&, ScriptedEventLoop& event_loop) {
      auto made = std::make_unique<CheckedHands>(event_loop);
      hands = made.get();
      return made;
    };
    ASSERT_EQ(walk::FaultOfWalk(seed, make_hands, [&] { return hands->Differences(); }), "");
  }
}

}  // namespace
}  // namespace quilla::robot
