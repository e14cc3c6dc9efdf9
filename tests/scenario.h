// Scenario files: a script and its transcript in one, so that all lines together are what must
// come out.
#ifndef QUILLA_TESTS_SCENARIO_H_
#define QUILLA_TESTS_SCENARIO_H_

#include <filesystem>
#include <string>
#include <vector>

namespace quilla::robot {

struct Scenario {
  /// The script: the lines that begin with "> ", without that mark.
  std::string script;
  /// The transcript: all lines but empty ones and comments.
  std::string transcript;
};

Scenario ReadScenario(const std::filesystem::path& path);

/// All scenario files of a folder, in order of their names.
std::vector<std::filesystem::path> ScenariosIn(const std::filesystem::path& folder);

/// Shows the first line where two transcripts differ, with the lines before it; empty if they are
/// equal.
std::string FirstDifference(const std::string& expected, const std::string& actual);

/// A fresh working directory that holds copies of given files, and goes with the object.
class ScratchFolder {
 public:
  /// `files` is a folder whose content is copied; nothing is copied if it does not exist.
  explicit ScratchFolder(const std::filesystem::path& files);
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ScratchFolder(ScratchFolder&&) = delete;
  ScratchFolder& operator=(ScratchFolder&&) = delete;
  ~ScratchFolder();

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
  std::filesystem::path home_;
};

}  // namespace quilla::robot

#endif  // QUILLA_TESTS_SCENARIO_H_
