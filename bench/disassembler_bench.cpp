// The disassembler on images of up to 64 KB whose operands all differ: the listing of the bytes,
// and each stage from Done to the program. That which assigns addresses is measured with the panel.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <fstream>
#include <ostream>
#include <string>
#include <vector>

#include "disassembler/program_layout.h"
#include "disassembler/stages.h"
#include "formats/hex_records.h"
#include "panel_fixture.h"
#include "platform/number_text.h"
#include "program/default_comment.h"
#include "scenario.h"

namespace quilla::bench {
namespace {

constexpr const char* kImage = "image.hex";
constexpr int kLxiB = 0x01;
constexpr int kInstructionBytes = 3;
constexpr int kOperandValues = 0x100;

/// The records of an image of LXI B instructions from address 0 on, each with another operand.
std::vector<std::string> MakeRecords(int bytes) {
  std::vector<std::string> records;
  for (int address = 0; address < bytes; ++address) {
    if (address % kRecordBytes == 0) {
      const int count = std::min(kRecordBytes, bytes - address);
      records.push_back(":" + PaddedHexText(count, kByteDigits) + AddressText(address) + "00");
    }
    const int operand = address / kInstructionBytes;
    const int values[kInstructionBytes] = {kLxiB, operand % kOperandValues,
                                           operand / kOperandValues};
    records.back() += PaddedHexText(values[address % kInstructionBytes], kByteDigits);
  }
  records.push_back(kEndRecord);
  return records;
}

/// A plain read of a file that holds the records.
Measure PlainReadOf(const std::vector<std::string>& records) {
  constexpr double kMostReads = 10;
  constexpr int kTimes = 8;
  std::ofstream file(kImage, std::ios::binary);
  for (const std::string& record : records) file << '"' << record << "00\"\r\n";
  const auto read = [] {
    std::ifstream input(kImage, std::ios::binary);
    for (std::string line; std::getline(input, line);) benchmark::DoNotOptimize(line.data());
  };
  return {"x_fstream", read, kMostReads, kTimes};
}

void BM_ListBytes(benchmark::State& state) {
  const robot::ScratchFolder folder("");
  const auto bytes = static_cast<int>(state.range(0));
  const std::vector<std::string> records = MakeRecords(bytes);
  std::vector<MarkedByte> listed;
  Run(
      state, {PlainReadOf(records)}, [] {}, [&] { listed = ListBytes(records); },
      [&] { return listed.size() == static_cast<std::size_t>(bytes); });
}
BENCHMARK(BM_ListBytes)->Apply(OverTableSizes);

/// An image whose bytes are all marked, and what the stages make of it.
struct Disassembly {
  explicit Disassembly(int size) : bytes(ListBytes(MakeRecords(size))) {
    for (MarkedByte& byte : bytes) byte.category = Category::kMnemonic;
  }

  void Check() {
    Clear(layout);
    CheckMarks(bytes, layout);
    parts.session.LastLine = layout.LastLine;
  }
  void Copy() { CopyOpcodes(layout, parts.session, parts.rows, parts.origins); }
  void Name() { NameOperands(layout, parts.session); }
  void Assign() { parts.addresses.Assign_Address(true); }
  void Place() { PlaceLabels(parts.session); }
  void Comment() {
    Session& session = parts.session;
    for (int row = 0; row < session.Table1.Rows(); ++row) ApplyDefaultComment(session, row);
  }

  SessionParts parts;
  std::vector<MarkedByte> bytes;
  ProgramLayout layout;
};

/// Times one stage on what the stages before it have made.
template <typename Before, typename Stage>
void RunStage(benchmark::State& state, const Before& before, const Stage& stage) {
  const robot::ScratchFolder folder("");
  const auto size = static_cast<int>(state.range(0)) / kInstructionBytes * kInstructionBytes;
  Disassembly work(size);
  Session& session = work.parts.session;
  for (int i = 0; i < 2; ++i) {  // the passes need a whole program, the stages warm memory
    work.Check();
    work.Copy();
    work.Name();
    work.Assign();
    work.Place();
    work.Comment();
  }
  Run(
      state, {PassOver(session), PlainReadOf(MakeRecords(size))}, [&] { before(work); },
      [&] { stage(work); },
      [&] {
        before(work);
        work.Check();
        work.Copy();
        work.Name();
        return session.LabelCombo.Count() == size / kInstructionBytes;
      });
}

void BM_CheckMarks(benchmark::State& state) {
  RunStage(
      state, [](Disassembly&) {}, [](Disassembly& work) { work.Check(); });
}
BENCHMARK(BM_CheckMarks)->Apply(OverTableSizes);

void BM_CopyOpcodes(benchmark::State& state) {
  RunStage(
      state, [](Disassembly&) {}, [](Disassembly& work) { work.Copy(); });
}
BENCHMARK(BM_CopyOpcodes)->Apply(OverTableSizes);

void BM_NameOperands(benchmark::State& state) {
  RunStage(
      state, [](Disassembly& work) { work.Copy(); }, [](Disassembly& work) { work.Name(); });
}
BENCHMARK(BM_NameOperands)->Apply(OverTableSizes);

void BM_PlaceLabels(benchmark::State& state) {
  RunStage(
      state,
      [](Disassembly& work) {
        work.Copy();
        work.Name();
        work.Assign();
      },
      [](Disassembly& work) { work.Place(); });
}
BENCHMARK(BM_PlaceLabels)->Apply(OverTableSizes);

void BM_DefaultComments(benchmark::State& state) {
  RunStage(
      state,
      [](Disassembly& work) {
        work.Copy();
        work.Name();
      },
      [](Disassembly& work) { work.Comment(); });
}
BENCHMARK(BM_DefaultComments)->Apply(OverTableSizes);

}  // namespace
}  // namespace quilla::bench
