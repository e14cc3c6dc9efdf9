// Start-up and memory of the program beside windows of Qt that are none of its own, each a process
// that is started anew, in turn, so that all find the machine alike. It needs a display.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

namespace {

constexpr int kStarts = 40;
constexpr double kSplashMs = 20;
// Of an empty window of the same size, the time of the splash aside:
constexpr double kMostTime = 1.5;
constexpr double kMostMemory = 1.4;

struct Window {
  const char* name;
  const char* command;
};

constexpr Window kEmpty{"empty", "\"" QUILLA_EMPTY_WINDOW "\" empty"};
constexpr Window kText{"text", "\"" QUILLA_EMPTY_WINDOW "\" text"};
constexpr Window kLarge{"large", "\"" QUILLA_EMPTY_WINDOW "\" large"};
constexpr Window kSplash{"splash", "\"" QUILLA_FIRST_PAINT "\" splash"};
constexpr Window kPanel{"panel", "\"" QUILLA_FIRST_PAINT "\" panel"};

/// The processor's time of all processes that have ended, in milliseconds.
double ProcessorMs() {
  rusage usage{};
  getrusage(RUSAGE_CHILDREN, &usage);
  const auto in_ms = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) * 1e-3;
  };
  return in_ms(usage.ru_utime) + in_ms(usage.ru_stime);
}

// The counters are least times in milliseconds, by the clock and of the processor; and how many
// times the panel takes those of empty windows, the small one that Qt makes and one of its own
// size.
void BM_StartUp(benchmark::State& state) {
  constexpr std::array kWindows = {kEmpty, kLarge, kText, kSplash, kPanel};
  std::array<double, kWindows.size()> wall{};
  wall.fill(std::numeric_limits<double>::infinity());
  std::array<double, kWindows.size()> processor = wall;
  for ([[maybe_unused]] const auto& run : state) {
    for (std::size_t i = 0; i < kWindows.size(); ++i) {
      const double processor_before = ProcessorMs();
      const auto before = std::chrono::steady_clock::now();
      if (std::system(kWindows[i].command) != 0) state.SkipWithError("it did not start");
      const std::chrono::duration<double, std::milli> taken =
          std::chrono::steady_clock::now() - before;
      wall[i] = std::min(wall[i], taken.count());
      processor[i] = std::min(processor[i], ProcessorMs() - processor_before);
    }
  }
  for (std::size_t i = 0; i < kWindows.size(); ++i) {
    state.counters[kWindows[i].name] = wall[i];
    state.counters[std::string(kWindows[i].name) + "_cpu"] = processor[i];
  }
  const double own = wall.back() - kSplashMs;
  state.counters["x_empty"] = own / wall[0];
  state.counters["x_large"] = own / wall[1];
  if (own > kMostTime * wall[1]) state.SetLabel("OVER THE LIMIT");
}
BENCHMARK(BM_StartUp)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(kStarts);

/// The megabytes that a window takes at rest.
double MegabytesOf(const Window& window) {
  std::FILE* const told = popen((std::string(window.command) + " memory").c_str(), "r");
  int kilobytes = 0;
  if (told == nullptr || std::fscanf(told, "%d", &kilobytes) != 1) std::abort();
  pclose(told);
  return kilobytes / 1024.0;
}

// The counters are megabytes.
void BM_Memory(benchmark::State& state) {
  double large = 0;
  double panel = 0;
  for ([[maybe_unused]] const auto& run : state) {
    for (const Window& window : {kEmpty, kText}) {
      state.counters[window.name] = MegabytesOf(window);
    }
    state.counters[kLarge.name] = large = MegabytesOf(kLarge);
    state.counters[kPanel.name] = panel = MegabytesOf(kPanel);
  }
  state.counters["x_large"] = panel / large;
  if (panel > kMostMemory * large) state.SetLabel("OVER THE LIMIT");
}
BENCHMARK(BM_Memory)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

}  // namespace
