// Opening hex files: reading the records and checking their sums.
#include <benchmark/benchmark.h>

#include <fstream>
#include <string>

#include "formats/hex_file.h"
#include "formats/hex_records.h"
#include "panel_fixture.h"
#include "platform/number_text.h"
#include "scenario.h"

namespace quilla::bench {
namespace {

constexpr const char* kPath = "image.hex";
constexpr double kMostReads = 10;
constexpr HexFileChannels kChannels{.read = 7, .clean_up = 5};

/// Writes a hex file of so many bytes from address 0 on, a multiple of the bytes of a record.
void WriteImage(int bytes) {
  std::ofstream file(kPath, std::ios::binary);
  for (int address = 0; address < bytes; address += kRecordBytes) {
    std::string record = ":10" + AddressText(address) + "00";
    for (int byte = 0; byte < kRecordBytes; ++byte) {
      record += PaddedHexText((address + byte) * 37 % 0x100, kByteDigits);
    }
    const std::string checksum = Checksum(record);
    file << '"' << record << checksum.substr(checksum.size() - kByteDigits) << "\"\r\n";
  }
  file << '"' << kEndRecord << "\"\r\n";
}

void BM_OpenHexFile(benchmark::State& state) {
  const robot::ScratchFolder folder("");
  const int bytes = static_cast<int>(state.range(0));
  WriteImage(bytes);
  std::ostream transcript{nullptr};
  robot::ScriptedOutside outside{transcript};
  Session session{outside.ports};
  HexFileOpening opening = HexFileOpening::kNotRead;
  const auto read_plainly = [] {
    std::ifstream file(kPath, std::ios::binary);
    for (std::string line; std::getline(file, line);) benchmark::DoNotOptimize(line.data());
  };
  Run(
      state, {{"x_fstream", read_plainly, kMostReads}}, [&] { outside.file_dialogs.Queue(kPath); },
      [&] { opening = OpenHexFile(session, kChannels); },
      [&] {
        return opening == HexFileOpening::kGood &&
               session.HexList.Count() == bytes / kRecordBytes + 1;
      });
}
BENCHMARK(BM_OpenHexFile)->Apply(OverTableSizes);

}  // namespace
}  // namespace quilla::bench
