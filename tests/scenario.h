// Scenario files: scripts and their transcripts in one, so that all lines together are what must
// come out. A line "== title" begins a scenario, in a program that has just started.
#ifndef QUILLA_TESTS_SCENARIO_H_
#define QUILLA_TESTS_SCENARIO_H_

#include <filesystem>
#include <string>
#include <vector>

namespace quilla::robot {

inline const std::filesystem::path kScenarios = QUILLA_SOURCE_DIR "/tests/scenarios";

struct Scenario {
  /// The file and the title, each character that is no letter or digit an underscore.
  std::string name;
  /// The script: the lines that begin with "> ", without that mark.
  std::string script;
  /// The transcript: the windows of the start, then all lines but empty ones and comments.
  std::string transcript;
};

/// The scenarios of all files, in order of their names. What stands over the first title of a file
/// is a scenario too.
std::vector<Scenario> AllScenarios();

/// Shows the first line where two transcripts differ, after the lines that do not; empty if they
/// are equal.
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
