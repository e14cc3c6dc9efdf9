// A fuzzing target: the simulator over any memory. The first two bytes are where it starts, all
// others lie in memory from there on, around the top.
#include "fuzz/fuzz.h"
#include "platform/failure.h"
#include "simulator/machine.h"

namespace quilla::fuzz {

void Simulator(std::string_view input) {
  constexpr int kMostSteps = 500;
  if (input.size() < 2) return;
  WatchTables tables(nullptr);
  tables.Load();
  Machine machine(tables, [](const std::string&) {});
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(input[at]); };
  const int start = byte(0) << 8 | byte(1);
  for (std::size_t i = 2; i < input.size(); ++i) {
    tables.SetMem((start + static_cast<int>(i) - 2) & kTopAddress,
                  PaddedHexText(byte(i), kByteDigits));
  }
  try {
    machine.StartAt(PaddedHexText(start, kAddressDigits));
  } catch (const Failure&) {
  }
  for (int step = 0; step < kMostSteps; ++step) {
    try {
      machine.Execute();
    } catch (const Failure&) {
    }
    Require(machine.InstLength >= 0 && machine.InstLength <= 3);
  }
}

}  // namespace quilla::fuzz
