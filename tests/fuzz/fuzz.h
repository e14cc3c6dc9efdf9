// The fuzzing targets: each takes any bytes, and ends the process where what must hold does not.
#ifndef QUILLA_TESTS_FUZZ_FUZZ_H_
#define QUILLA_TESTS_FUZZ_FUZZ_H_

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace quilla::fuzz {

void HexFile(std::string_view input);
void ProjectFile(std::string_view input);
void Items(std::string_view input);
void Script(std::string_view input);
void Simulator(std::string_view input);

inline void Require(bool condition) {
  if (!condition) std::abort();
}

/// Writes a file of these bytes and gives its path, the same in all runs of the process.
inline const std::string& FileOf(std::string_view bytes) {
  static const std::string kPath = (std::filesystem::temp_directory_path() /
                                    ("quilla-fuzz-" + std::to_string(std::random_device()())))
                                       .string();
  std::ofstream(kPath, std::ios::binary) << bytes;
  return kPath;
}

}  // namespace quilla::fuzz

#endif  // QUILLA_TESTS_FUZZ_FUZZ_H_
