// The entry of the fuzzing target, under the name that fuzzing engines call.
#ifndef QUILLA_TESTS_FUZZ_HEX_FUZZ_H_
#define QUILLA_TESTS_FUZZ_HEX_FUZZ_H_

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

#endif  // QUILLA_TESTS_FUZZ_HEX_FUZZ_H_
