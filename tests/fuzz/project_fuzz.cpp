// A fuzzing target: any project file. It is refused, or a save of it opens again as the same.
#include "fuzz/fuzz.h"
#include "panel/running_program.h"

namespace quilla::fuzz {
namespace {

bool HasQuote(const std::vector<std::vector<std::string>>& content) {
  for (const auto& texts : content) {
    for (const std::string& text : texts) {
      if (text.find('"') != std::string::npos) return true;
    }
  }
  return false;
}

}  // namespace

void ProjectFile(std::string_view input) {
  RunningProgram program;
  const std::string path = FileOf(input);
  program.Open(path);
  if (!program.TakeBoxes().empty()) return;
  program.SaveAs(path + ".baf");
  const auto content = program.Content();
  program.Open(path + ".baf");
  Require(HasQuote(content) || program.Content() == content);
}

}  // namespace quilla::fuzz
