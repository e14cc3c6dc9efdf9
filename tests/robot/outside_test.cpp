// The world outside as the script makes it: what it answers, and what it writes down.
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <sstream>
#include <string>

#include "platform/button.h"
#include "platform/failure.h"
#include "platform/form.h"
#include "platform/grid.h"
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

TEST_F(OutsideTest, FileDialogsGiveTheQueuedPathsThenNothing) {
  outside_.file_dialogs.Queue("a b.hex");
  outside_.file_dialogs.Queue(std::nullopt);
  outside_.file_dialogs.Queue("c");
  const FileDialogRequest save{FileDialogKind::kSave, "Save", "All|*", 0};
  const FileDialogRequest open{FileDialogKind::kOpen, "Open", "", 0};
  EXPECT_EQ(outside_.file_dialogs.Choose(save), "a b.hex");
  EXPECT_EQ(outside_.file_dialogs.Choose(open), std::nullopt);
  EXPECT_EQ(outside_.file_dialogs.Choose(open), "c");
  EXPECT_EQ(outside_.file_dialogs.Choose(open), std::nullopt);
  EXPECT_EQ(Written(),
            "dialog save \"Save\" \"All|*\" -> \"a b.hex\"\n"
            "dialog open \"Open\" \"\" -> cancel\n"
            "dialog open \"Open\" \"\" -> \"c\"\n"
            "dialog open \"Open\" \"\" -> cancel\n");
}

std::optional<ErrorNumber> FailureOf(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const Failure& failure) {
    return failure.number();
  }
  return std::nullopt;
}

TEST_F(OutsideTest, PortTellsWhatTookEffect) {
  ScriptedPort& port = outside_.port;
  port.Feed("lost");
  port.SetDtr(true);
  port.Close();
  EXPECT_EQ(FailureOf([&] { port.Read(); }), ErrorNumber::kPortFailed);
  EXPECT_EQ(Written(), "");
  port.Open(2, "2400,N,8,1");
  port.SetDtr(true);
  port.SetRts(false);
  port.Write(":\r\xFF");
  port.Feed("a");
  port.Feed("b");
  EXPECT_EQ(port.Read(), "ab");
  EXPECT_EQ(port.Read(), "");
  port.Close();
  EXPECT_EQ(Written(),
            "port open 2 \"2400,N,8,1\"\ndtr 1\nrts 0\nsent \":\\r\\xFF\"\nport close\n");
}

TEST_F(OutsideTest, PortFailsAsItsStateSays) {
  ScriptedPort& port = outside_.port;
  port.SetState(1, PortState::kMissing);
  port.SetState(2, PortState::kBusy);
  port.SetState(3, PortState::kBroken);
  EXPECT_EQ(FailureOf([&] { port.Open(1, ""); }), ErrorNumber::kPortMissing);
  EXPECT_EQ(FailureOf([&] { port.Open(2, ""); }), ErrorNumber::kPortInUse);
  EXPECT_FALSE(port.IsOpen());
  EXPECT_EQ(Written(), "");
  port.Open(3, "");
  EXPECT_EQ(FailureOf([&] { port.Write("a"); }), ErrorNumber::kPortFailed);
  EXPECT_EQ(FailureOf([&] { port.Read(); }), ErrorNumber::kPortFailed);
  EXPECT_EQ(Written(), "port open 3 \"\"\n");
}

TEST_F(OutsideTest, PrinterTellsLabelsRowsAndShade) {
  Form layout("PrintPanel");
  Label name(&layout, "NameLabel", "a.baf");
  Label comment(&layout, "CommentLabel", "\"x\"");
  Label page(&layout, "PageLabel", "2");
  Label pages(&layout, "TotalPagesLabel", "13");
  Grid table(&layout, "Table", 3);
  table.SetRows(4);
  table.SetTextMatrix(0, 1, "b");
  table.SetTextMatrix(2, 0, "a");
  table.PaintBack(1, 0, CellColor(0xD0D0D0));
  table.PaintBack(2, 0, CellColor(0xD0D0D0));
  table.PaintBack(2, 1, CellColor(0xE0E0E0));
  table.PaintBack(2, 2, CellColor(0xD0D0D0));
  outside_.printer.PrintForm(layout);
  EXPECT_EQ(Written(),
            "page PrintPanel \"a.baf\" \"\\\"x\\\"\" 2 13\n"
            "line 0 \"\" \"b\" \"\" shade=-\n"
            "line 2 \"a\" \"\" \"\" shade=0,2\n");
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

TEST_F(OutsideTest, DialogWaitsUntilItIsClosedAndBlocksMeanwhile) {
  ScriptedEventLoop& loop = outside_.event_loop;
  Form dialog("Dialog");
  Form window("Window");
  loop.Show(window);
  loop.play_command = [&] {
    EXPECT_EQ(loop.modal(), &dialog);
    EXPECT_EQ(loop.active(), &dialog);
    loop.Unload(dialog);
    EXPECT_EQ(loop.modal(), nullptr);
    return true;
  };
  loop.ShowModal(dialog);
  EXPECT_EQ(loop.modal(), nullptr);
  EXPECT_EQ(loop.active(), nullptr) << "the panel";
  EXPECT_EQ(Written(), "open Window\nopen Dialog\nclosed Dialog\n");
}

}  // namespace
}  // namespace quilla::robot
