// What the user does to a control, and what becomes of a handler that fails.
#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <stdexcept>

#include "platform/button.h"
#include "platform/failure.h"
#include "platform/grid.h"
#include "platform/text_box.h"
#include "platform/text_list.h"
#include "robot/scripted_outside.h"

namespace quilla {
namespace {

TEST(EventsTest, AFailureEndsTheHandlerAndAFaultPasses) {
  std::ostringstream transcript;
  robot::ScriptedOutside outside(transcript);
  EventLoop& loop = outside.event_loop;
  int runs = 0;
  std::function<void()> handler;
  const auto run = [&] { ++runs, handler(); };
  const auto run_key = [&](auto) { run(); };
  Form form("Form");
  Box box(&form, "Box");
  Button button(&form, "Button", "");
  Option option(&form, "Option", "");
  Label label(&form, "Label");
  MenuEntry entry(&form, "Entry", "");
  TextBox text_box(&form, "TextBox");
  ComboBox list(&form, "List");
  Grid grid(&form, "Grid", 1), moved(&form, "Moved", 1);
  Timer timer(outside.clock, "Timer", 1);
  list.Add("entry");
  grid.SetRows(2), moved.SetRows(2);
  button.MouseDown = button.MouseUp = button.Click = button.MouseMove = option.Click = run;
  label.Click = entry.Click = text_box.TextChange = list.Click = timer.Fire = form.Unload = run;
  grid.MouseDown = grid.MouseUp = grid.Click = moved.CurrentCellChange = run;
  box.KeyPress = button.KeyPress = run_key;
  grid.CellMouseMove = run_key;
  form.QueryUnload = [&]() -> bool { return run(), true; };
  const std::function<void()> deeds[] = {
      [&] { button.Press(); },
      [&] { button.Release(); },
      [&] { button.Choose(); },
      [&] { button.Hover(); },
      [&] { button.PressKey('a'); },
      [&] { box.PressKey('a'); },
      [&] { option.Choose(); },
      [&] { label.Choose(); },
      [&] { entry.Choose(); },
      [&] { text_box.Type("a"); },
      [&] { list.Pick(0); },
      [&] { timer.Expire(); },
      [&] { grid.PressCell(1, 0); },
      [&] { grid.ReleaseAt(0); },
      [&] { grid.ClickCell(); },
      [&] { grid.HoverCell(0, 0); },
      [&] { moved.PressCell(1 - moved.Row(), 0); },
      [&] { loop.Show(form), loop.Unload(form); },
  };
  for (const auto& deed : deeds) {
    SCOPED_TRACE(&deed - deeds);
    runs = 0;
    handler = [] { throw Failure(ErrorNumber::kNotANumber); };
    EXPECT_NO_THROW(deed());
    handler = [] { throw std::logic_error("a fault"); };
    EXPECT_THROW(deed(), std::logic_error);
    EXPECT_EQ(runs, 2);
  }
  handler = [] { throw Failure(ErrorNumber::kNotANumber); };
  loop.Show(form);
  loop.CloseByFrame(form);
  EXPECT_FALSE(form.visible()) << "a question that fails keeps nothing open";
}

}  // namespace
}  // namespace quilla
