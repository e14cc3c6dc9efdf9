#include "simulator/watch_window_dialog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/button.h"

namespace quilla {
namespace {

class WatchWindowDialogTest : public testing::Test {
 protected:
  WatchWindowDialogTest() { dialog_.Load(); }

  Button& ButtonNamed(const std::string& name, int index = Control::kNoIndex) {
    return dynamic_cast<Button&>(*dialog_.form().Find(name, index));
  }
  std::string Caption(const std::string& name) { return dialog_.form().Find(name)->caption(); }
  void Click(const std::string& name) { ButtonNamed(name).Choose(); }
  void Accept(const std::string& address) {
    for (const char key : address) ButtonNamed("AcceptButton").PressKey(key);
    Click("AcceptButton");
  }

  std::vector<std::string> boxes_;
  WatchWindowDialog dialog_{[this](const std::string& text) { boxes_.push_back(text); }};
};

TEST_F(WatchWindowDialogTest, ANoteStandsUntilTheNextStepOrAddress) {
  const std::string no_address = "Enter a starting address and press OK.";
  const std::string failed = "This instruction could not be carried out.";
  const std::string unreadable = "The instruction at this address could not be read.";
  EXPECT_EQ(Caption("StepNoteLabel"), "");
  Click("ExecuteButton");
  EXPECT_EQ(Caption("StepNoteLabel"), no_address);
  dialog_.tables().SetMem(0x2000, "F5");  // PUSH PSW
  dialog_.tables().SetReg(kRowA, "1E");
  Accept("2000");
  EXPECT_EQ(Caption("StepNoteLabel"), "");
  Click("ExecuteButton");
  EXPECT_EQ(Caption("StepNoteLabel"), failed);
  dialog_.tables().SetReg(kRowA, "12");
  Click("ExecuteButton");
  EXPECT_EQ(Caption("StepNoteLabel"), "");
  dialog_.tables().SetMem(kTopAddress, "3E");
  Accept("FFFF");
  EXPECT_EQ(Caption("StepNoteLabel"), unreadable);
}

TEST_F(WatchWindowDialogTest, AHaltedMachineKeepsWhatIsOnView) {
  dialog_.tables().SetMem(0, "76");
  Click("AcceptButton");
  Click("ExecuteButton");
  dialog_.tables().SetMem(kTopAddress, "3E");
  Accept("FFFF");
  const std::string note = Caption("StepNoteLabel");
  EXPECT_NE(note, "");
  Click("ExecuteButton");
  EXPECT_EQ(Caption("StepNoteLabel"), note);
  EXPECT_EQ(boxes_.size(), 1U);
}

TEST_F(WatchWindowDialogTest, KeysMoveTheAddressAlong) {
  struct Case {
    const char* keys;
    const char* address;
  };
  for (const auto& [keys, address] : std::vector<Case>{
           {"2000", "2000"}, {"5", "0005"}, {"aF", "05AF"}, {"g /:@`\r\x80", "05AF"}}) {
    for (const char* key = keys; *key != '\0'; ++key) {
      ButtonNamed("AcceptButton").PressKey(*key);
    }
    EXPECT_EQ(Caption("AddrLbl"), address);
  }
  for (int digit = 12; digit < 16; ++digit) ButtonNamed("NUM", digit).Choose();
  EXPECT_EQ(Caption("AddrLbl"), "CDEF");
  EXPECT_EQ(dialog_.form().focused(), dialog_.form().Find("AcceptButton"));
}

TEST_F(WatchWindowDialogTest, LoadsAfreshOnceItIsClosed) {
  dialog_.tables().SetMem(0, "76");
  Click("AcceptButton");
  Click("ExecuteButton");
  Accept("1234");
  ButtonNamed("IButton", 1).Press();
  dynamic_cast<ComboBox&>(*dialog_.form().Find("ValueList")).Pick(60);
  Click("ForceButton");
  dialog_.tables().SetReg(kRowSP, "1234");
  dialog_.tables().InterruptTable.PaintBack(kRowRst55, kTitleColumn, kEnabledColor);

  dialog_.Load();
  EXPECT_EQ(dialog_.tables().PortText(0), "3C");
  dialog_.form().Unload();
  dialog_.Load();
  const WatchTables& tables = dialog_.tables();
  EXPECT_EQ(tables.PortText(0), "00");
  EXPECT_EQ(tables.MemText(0), "00");
  EXPECT_EQ(tables.RegText(kRowSP), "FF00");
  EXPECT_EQ(tables.OpcodeText(), "");
  EXPECT_EQ(tables.InterruptTable.BackColor(kRowRst55, kTitleColumn), kMaskedColor);
  EXPECT_EQ(ButtonNamed("IButton", 1).caption(), "0");
  EXPECT_EQ(Caption("AddrLbl"), "0000");
  EXPECT_EQ(dynamic_cast<ComboBox&>(*dialog_.form().Find("ValueList")).index(), 0);
  Click("AcceptButton");
  Click("ExecuteButton");
  EXPECT_EQ(tables.RegText(kRowPC), "0001");
  EXPECT_EQ(boxes_.size(), 1U);
}

TEST_F(WatchWindowDialogTest, LinesToggleAndOneIsAPulse) {
  for (int index = 1; index <= 5; ++index) {
    Button& line = ButtonNamed("IButton", index);
    const bool pulse = index == 2;
    std::string levels;
    for (int click = 0; click < 2; ++click) {
      line.Press();
      levels += line.caption();
      line.Release();
      levels += line.caption();
    }
    EXPECT_EQ(levels, pulse ? "1010" : "1100") << index;
  }
}

}  // namespace
}  // namespace quilla
