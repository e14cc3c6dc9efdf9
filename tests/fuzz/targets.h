// The fuzzing targets: each takes any bytes, and ends the process where what must hold does not.
#ifndef QUILLA_FUZZ_TARGETS_H_
#define QUILLA_FUZZ_TARGETS_H_

#include <cstdlib>
#include <string>
#include <string_view>

namespace quilla::fuzz {

struct Target {
  std::string name;  // that of the folder of its corpus too
  void (*take)(std::string_view input);
};

void HexFile(std::string_view input);
void ProjectFile(std::string_view input);
void Items(std::string_view input);
void Script(std::string_view input);
void Simulator(std::string_view input);

const Target kTargets[] = {{"hex", HexFile},
                           {"project", ProjectFile},
                           {"items", Items},
                           {"script", Script},
                           {"simulator", Simulator}};

inline void Require(bool condition) {
  if (!condition) std::abort();
}

/// Writes a file of these bytes and gives its path, the same in all runs of the process.
const std::string& FileOf(std::string_view bytes);

}  // namespace quilla::fuzz

#endif  // QUILLA_FUZZ_TARGETS_H_
