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

/// Adds the scenarios of a file.
void ReadScenarios(const fs::path& path, std::vector<Scenario>& scenarios) {
  std::string title = path.stem().string();
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.front() == '#') continue;
    if (line.starts_with(kTitleMark)) {
      title = path.stem().string() + '_' + line.substr(kTitleMark.size());
      continue;
    }
    if (!title.empty()) scenarios.push_back({NameOf(std::exchange(title, {})), {}, kStart});
    Scenario& scenario = scenarios.back();
    if (line.starts_with(kScriptMark)) scenario.script += line.substr(kScriptMark.size()) + '\n';
    scenario.transcript += line + '\n';
  }
}

}  // namespace

std::vector<Scenario> AllScenarios() {
  std::set<fs::path> paths;
  for (const auto& entry : fs::directory_iterator(kScenarios)) {
    if (entry.path().extension() == kScenarioEnding) paths.insert(entry.path());
  }
  std::vector<Scenario> scenarios;
  for (const fs::path& path : paths) ReadScenarios(path, scenarios);
  return scenarios;
}

std::string FirstDifference(const std::string& expected, const std::string& actual) {
  std::istringstream wanted(expected);
  std::istringstream found(actual);
  std::string wanted_line;
  std::string found_line;
  std::string report;
  while (std::getline(wanted, wanted_line) && std::getline(found, found_line)) {
    if (wanted_line != found_line) {
      return report + "expected:  " + wanted_line + "\nbut it is: " + found_line + '\n';
    }
    report += "           " + wanted_line + '\n';
  }
  return expected == actual ? "" : report + "one ends here, the other goes on\n";
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
