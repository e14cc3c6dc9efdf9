#include "scenario.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <random>
#include <set>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>

namespace quilla::robot {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kTitleMark = "== ";
constexpr std::string_view kScriptMark = "> ";
constexpr const char* kStart = "open OpenForm\nclosed OpenForm\n";
constexpr std::string_view kScenarioEnding = ".robot";
constexpr std::size_t kContextLines = 6;

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::string NameOf(std::string name) {
  std::ranges::replace_if(
      name, [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

/// A folder of its own for this object, under a name that nobody else has.
fs::path NewFolder() {
  std::random_device random;
  fs::path folder;
  do {
    folder = fs::temp_directory_path() / ("quilla-scenario-" + std::to_string(random()));
  } while (!fs::create_directory(folder));
  return fs::canonical(folder);
}

}  // namespace

std::vector<Scenario> ReadScenarios(const fs::path& path) {
  std::vector<Scenario> scenarios;
  std::string title;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.front() == '#') continue;
    if (line.starts_with(kTitleMark)) {
      title = '_' + line.substr(kTitleMark.size());
      continue;
    }
    if (scenarios.empty() || !title.empty()) {
      scenarios.push_back({NameOf(path.stem().string() + std::exchange(title, {})), {}, kStart});
    }
    Scenario& scenario = scenarios.back();
    if (line.starts_with(kScriptMark)) scenario.script += line.substr(kScriptMark.size()) + '\n';
    scenario.transcript += line + '\n';
  }
  return scenarios;
}

std::vector<Scenario> ScenariosIn(const fs::path& folder) {
  std::set<fs::path> paths;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == kScenarioEnding) paths.insert(entry.path());
  }
  std::vector<Scenario> scenarios;
  for (const fs::path& path : paths) {
    for (Scenario& scenario : ReadScenarios(path)) scenarios.push_back(std::move(scenario));
  }
  return scenarios;
}

std::string FirstDifference(const std::string& expected, const std::string& actual) {
  const std::vector<std::string> wanted = LinesOf(expected);
  const std::vector<std::string> found = LinesOf(actual);
  const auto [differs, instead] =
      std::mismatch(wanted.begin(), wanted.end(), found.begin(), found.end());
  if (differs == wanted.end() && instead == found.end()) return {};
  const auto line = static_cast<std::size_t>(differs - wanted.begin());
  std::string report = "line " + std::to_string(line + 1) + " of the transcript:\n";
  for (std::size_t i = line - std::min(line, kContextLines); i < line; ++i) {
    report += "           " + wanted[i] + '\n';
  }
  report += "expected:  " + (differs == wanted.end() ? "(the end)" : *differs) + '\n';
  report += "but it is: " + (instead == found.end() ? "(the end)" : *instead) + '\n';
  return report;
}

ScratchFolder::ScratchFolder(const fs::path& files)
    : path_(NewFolder()), home_(fs::current_path()) {
  if (fs::exists(files)) fs::copy(files, path_, fs::copy_options::recursive);
  fs::current_path(path_);
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  fs::current_path(home_, ignored);
  fs::remove_all(path_, ignored);
}

}  // namespace quilla::robot
