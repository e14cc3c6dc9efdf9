// Every program of examples/ is what its script makes, opens, assembles to its hex file, and comes
// to the result that the comment of its HLT promises.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "panel/running_program.h"
#include "platform/button.h"
#include "platform/grid.h"
#include "program/vocabulary.h"
#include "robot/robot.h"
#include "scenario.h"

namespace quilla::robot {
namespace {

namespace fs = std::filesystem;

const fs::path kExamples = fs::path(QUILLA_SOURCE_DIR) / "examples";

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const auto& file : fs::directory_iterator(kExamples / "src")) {
    names.push_back(file.path().stem().string());
  }
  return names;
}

class ExampleTest : public testing::TestWithParam<std::string> {};

TEST_P(ExampleTest, AssemblesAndComesToItsResult) {
  const fs::path hex_file = GetParam() + ".hex";
  const fs::path program = GetParam() + ".baf";
  const ScratchFolder folder(kExamples / "none");
  std::ifstream source(kExamples / "src" / (GetParam() + ".robot"));
  std::ostringstream transcript;
  ASSERT_EQ(RunScript(source, transcript, transcript), kPlayed) << transcript.str();
  EXPECT_EQ(transcript.str().find("refused"), std::string::npos) << transcript.str();
  EXPECT_EQ(BytesOf(program), BytesOf(kExamples / program));
  EXPECT_EQ(BytesOf(hex_file), BytesOf(kExamples / hex_file));

  fs::remove(hex_file);
  std::istringstream script("path " + program.string() + "\nclick OpenFile\npath " +
                            hex_file.string() +
                            "\nclick AssembleFile\nsettle\nclick SimulationView\nsettle\n"
                            "key WatchWindowDialog.AcceptButton 8000\n"
                            "click WatchWindowDialog.AcceptButton\n");
  Robot robot(script, transcript, transcript);
  ASSERT_EQ(robot.Play(), kPlayed) << transcript.str();
  EXPECT_EQ(BytesOf(hex_file), BytesOf(kExamples / hex_file));

  const Form* window = nullptr;
  for (const Form* form : robot.quilla().Forms()) {
    if (form->name() == kWatchWindowDialog) window = form;
  }
  constexpr int kMostSteps = 500;
  int steps = 0;
  while (transcript.str().find("execution halted") == std::string::npos) {
    ASSERT_LT(++steps, kMostSteps);
    window->Find("ExecuteButton")->Choose();
  }
  const auto& memory = dynamic_cast<const Grid&>(*window->Find("MemoryTable"));
  const auto& ports = dynamic_cast<const Grid&>(*window->Find("PortTable"));
  const Grid& rows = robot.quilla().panel()->session().Table1;
  int promises = 0;
  for (int row = 0; row < rows.Rows(); ++row) {
    const std::string comment = rows.TextMatrix(row, kCommentColumn);
    if (!comment.starts_with("Result:")) continue;
    std::istringstream words(comment);
    for (std::string kind, place, word; words >> word; kind = std::exchange(place, word)) {
      if (word != "holds") continue;
      words >> word;
      const Grid& table = kind == "port" ? ports : memory;
      EXPECT_EQ(table.TextMatrix(std::stoi(place, nullptr, 16) + 1, 1), word.substr(0, 2));
      ++promises;
    }
  }
  EXPECT_GT(promises, 0);
}

INSTANTIATE_TEST_SUITE_P(Examples, ExampleTest, testing::ValuesIn(Names()),
                         [](const auto& example) { return example.param; });

}  // namespace
}  // namespace quilla::robot
