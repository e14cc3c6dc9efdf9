// Start-up: from the start of the process to its end right behind the first paint, for the splash,
// the main panel and an empty main window. It needs a display.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

namespace {

void BM_StartUp(benchmark::State& state, const char* window) {
  const std::string command = std::string("\"" QUILLA_FIRST_PAINT "\" ") + window;
  for ([[maybe_unused]] const auto& run : state) {
    if (std::system(command.c_str()) != 0) state.SkipWithError("the program did not start");
  }
}
BENCHMARK_CAPTURE(BM_StartUp, empty, "empty")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(BM_StartUp, splash, "splash")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(BM_StartUp, panel, "panel")->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
