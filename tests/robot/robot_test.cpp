#include "robot/robot.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace quilla::robot {
namespace {

const std::string kStart = "open OpenForm\nclosed OpenForm\n";

/// Lines that are no command, with a bar behind each.
constexpr const char* kNoCommands = R"(
dance|Click EntryMode|click|click Nobody|click Nobody 1|click EntryMode 0|click PortOption|
click PortOption 4|click PortOption one|click NoWindow.INST 0|click OpenForm|
show TipsLabel TipsLabel|type TipsLabel text|pick Table1 0|cell Table1 0|cell Table1 0 1 2|
cell TipsLabel 0 0|drag Table1 0 0 1|hover Table1|hover Table1 1|hover ProgrammingPanel 1|close|
close EntryMode|answer maybe|path|nopath x|port 0 busy|port 5 busy|port 1 gone|feed a b|tick|
tick -1|tick soon|settle 1|state 1|dump TipsLabel|dump Table1 0 1 2|colors HexList|list Table1|
feed "a|changes now|escape ;|; escape|escape ; escape ";"|row|row NOP jmp|row ""|row "RET A"|
row NOP,|row "ADD SP"|row "MOV M,M"|row "MOV A"|row "MVI A"|row "MVI A,"|row "LDAX H"|
row "PUSH SP"|row "LXI PSW,a"|row "RST 8"|row "JMP a,b"|feed "a\"|feed "a"b|feed "\q"|
feed "\x4"|feed "\xG0"|feed "\x|pick XXCombo 1x|tick ""|tick +1|tick 0x10|tick 99999999999x)";

TEST(RobotTest, StopsAtTheFirstLineThatIsNoCommand) {
  std::istringstream lines(kNoCommands);
  for (std::string line; std::getline(lines, line, '|');) {
    if (line.starts_with('\n')) line.erase(0, 1);
    std::istringstream script("# comment\n\r\nescape\r\n" + line + "\nshow TipsLabel\n");
    std::ostringstream transcript;
    std::ostringstream errors;
    EXPECT_EQ(RunScript(script, transcript, errors), kNoCommand) << line;
    std::string echo = "> escape\n> ";
    echo.append(line).append("\n");
    EXPECT_EQ(transcript.str(), kStart + echo);
    EXPECT_TRUE(errors.str().starts_with("line 4: ")) << errors.str();
    EXPECT_EQ(errors.str().find('\n'), errors.str().size() - 1) << errors.str();
  }
}

}  // namespace
}  // namespace quilla::robot
