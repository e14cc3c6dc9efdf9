// Made-up scripts on the real widgets: after each line they show what the models hold.
#include <gtest/gtest.h>

#include <memory>

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
    }
    return lines.join(u'\n').toStdString();
  }
};

TEST(WalkWindowTest, WidgetsShowTheModelsWhateverTheUserDoes) {
  constexpr unsigned kFirst = 1001;
  constexpr unsigned kScripts = 12;
  walk::TellScriptOnDeath();
  for (unsigned seed = kFirst; seed < kFirst + kScripts; ++seed) {
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
