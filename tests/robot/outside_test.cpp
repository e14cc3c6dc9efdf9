// The world outside as the script makes it: what it answers, and what it writes down.
#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>

#include "platform/button.h"
#include "platform/form.h"
#include "robot/scripted_outside.h"

namespace quilla::robot {
namespace {

class OutsideTest : public testing::Test {
 protected:
  /// What was written down since the last call.
  std::string Written() {
    std::string text = transcript_.str();
    transcript_.str({});
    return text;
  }

  std::ostringstream transcript_;
  ScriptedOutside outside_{transcript_};
};

TEST_F(OutsideTest, BoxesTakeTheAnswersThatFit) {
  using Answer = BoxAnswer;
  using Buttons = BoxButtons;
  const struct {
    std::optional<Answer> queued;
    Buttons buttons;
    Answer answer;
    std::string written;
  } cases[] = {
      {{}, Buttons::kOk, Answer::kOk, "ok -> ok"},
      {{}, Buttons::kOkCancel, Answer::kCancel, "okcancel -> cancel"},
      {{}, Buttons::kYesNo, Answer::kNo, "yesno -> no"},
      {{}, Buttons::kYesNoCancel, Answer::kCancel, "yesnocancel -> cancel"},
      {Answer::kYes, Buttons::kYesNoCancel, Answer::kYes, "yesnocancel -> yes"},
      // One that does not fit is lost.
      {Answer::kOk, Buttons::kYesNo, Answer::kNo, "yesno -> no"},
      {{}, Buttons::kOkCancel, Answer::kCancel, "okcancel -> cancel"},
      // A box with OK alone leaves the queue alone.
      {Answer::kYes, Buttons::kOk, Answer::kOk, "ok -> ok"},
      {{}, Buttons::kYesNo, Answer::kYes, "yesno -> yes"},
  };
  for (const auto& [queued, buttons, answer, written] : cases) {
    if (queued) outside_.boxes.Queue(*queued);
    EXPECT_EQ(outside_.boxes.Show(BoxIcon::kQuestion, "a\"", buttons), answer);
    EXPECT_EQ(Written(), "box question \"a\\\"\" " + written + '\n');
  }
}

TEST_F(OutsideTest, WaitsAreAbandonedInnermostFirst) {
  ScriptedEventLoop& loop = outside_.event_loop;
  Form dialog("InnerDialog");
  Form outer("OuterDialog");
  Button key(&outer, "Key", "Open");
  key.Click = [&] { loop.ShowModal(dialog); };
  int lines = 0;
  loop.play_command = [&] {
    if (++lines == 2) key.Choose();
    return lines < 3;
  };
  EXPECT_THROW(loop.ShowModal(outer), ScriptOver);
  EXPECT_EQ(lines, 3);
  EXPECT_EQ(Written(),
            "open OuterDialog\nopen InnerDialog\nwaiting InnerDialog\nwaiting OuterDialog\n");
}

}  // namespace
}  // namespace quilla::robot
