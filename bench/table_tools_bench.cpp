// The tools that work in the table, on whole programs: opening and saving the project file, paste,
// find, replace, labels in place, equivalents.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>

#include "panel_fixture.h"

namespace quilla::bench {
namespace {

int RowsOf(const benchmark::State& state) { return static_cast<int>(state.range(0)); }

/// A folder of its own for the files of one benchmark; it goes with them.
class TemporaryFolder {
 public:
  TemporaryFolder() : path_(std::filesystem::temp_directory_path() / "quilla_bench") {
    std::filesystem::create_directories(path_);
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string File(const char* name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string bytes(std::filesystem::file_size(path), '\0');
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

void WriteBytes(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void SaveUnder(Session& session, const std::string& path) {
  session.FileOrigin = FileOrigin::kSaved;
  session.ProjectPath = path;
  session.menu.SaveFile.Click();
}

void BM_SaveFile(benchmark::State& state) {
  const TemporaryFolder folder;
  PanelFixture panel(RowsOf(state));
  Session& session = panel.session();
  SaveUnder(session, folder.File("program.baf"));
  const std::string bytes = BytesOf(folder.File("program.baf"));
  const Measure plain{"x_fstream", [&] { WriteBytes(folder.File("plain"), bytes); },
                      kMostTransfers};
  Run(
      state, {PassOver(session.Table1), plain}, [&] { panel.AssignAddresses(); },
      [&] { session.menu.SaveFile.Click(); });
}
BENCHMARK(BM_SaveFile)->Apply(OverTableSizes);

void BM_OpenFile(benchmark::State& state) {
  const TemporaryFolder folder;
  PanelFixture panel(RowsOf(state));
  Session& session = panel.session();
  const std::string path = folder.File("program.baf");
  SaveUnder(session, path);
  const Measure plain{"x_fstream", [&] { benchmark::DoNotOptimize(BytesOf(path).data()); },
                      kMostTransfers};
  Run(
      state, {PassOver(session.Table1), plain},
      [&] {
        panel.AssignAddresses();
        panel.outside().file_dialogs.Queue(path);
      },
      [&] { session.menu.OpenFile.Click(); });
}
BENCHMARK(BM_OpenFile)->Apply(OverTableSizes);

}  // namespace
}  // namespace quilla::bench
