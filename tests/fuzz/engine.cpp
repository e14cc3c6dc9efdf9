// One target under the name that fuzzing engines call; QUILLA_TARGET is its name.
#include <cstddef>
#include <cstdint>

#include "fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quilla::fuzz::QUILLA_TARGET({reinterpret_cast<const char*>(data), size});
  return 0;
}
