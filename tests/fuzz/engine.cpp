// One target under the name that fuzzing engines call; QUILLA_TARGET is its name.
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "fuzz/targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using quilla::fuzz::kTargets, quilla::fuzz::Target;
  static const auto kTake = std::ranges::find(kTargets, QUILLA_TARGET, &Target::name)->take;
  kTake({reinterpret_cast<const char*>(data), size});
  return 0;
}
