// The simulator: whole steps a second beside a bare loop over hexadecimal texts, the opening of the
// watch window with a full memory, and what its model takes of the computer's memory.
#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <memory>
#include <string>

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

#include "platform/number_text.h"
#include "program/session.h"
#include "simulator/simulation_start.h"
#include "simulator/watch_window_dialog.h"

namespace quilla {
namespace {

constexpr int kStart = 0x2000;

struct ProgramRow {
  int address;
  const char* bytes;
};

// A loop of mixed instructions: data movement, arithmetic, memory, stack, a call and a jump.
constexpr std::array<ProgramRow, 17> kMixedLoop = {{
    {0x2000, "3E   12"},       // MVI A, 12h
    {0x2002, "06   34"},       // MVI B, 34h
    {0x2004, "80"},            // ADD B
    {0x2005, "21   00   30"},  // LXI H, 3000h
    {0x2008, "77"},            // MOV M, A
    {0x2009, "34"},            // INR M
    {0x200A, "7E"},            // MOV A, M
    {0x200B, "27"},            // DAA
    {0x200C, "C5"},            // PUSH B
    {0x200D, "CD   15   20"},  // CALL 2015h
    {0x2010, "D1"},            // POP D
    {0x2011, "13"},            // INX D
    {0x2012, "C3   00   20"},  // JMP 2000h
    {0x2015, "FE   10"},       // CPI 10h
    {0x2017, "07"},            // RLC
    {0x2018, "00"},            // NOP
    {0x2019, "C9"},            // RET
}};

void IgnoreBox(const std::string& /*text*/) {}

void WriteRow(Grid& program, int row, const ProgramRow& content) {
  program.SetTextMatrix(row, kAddressColumn, AddressText(content.address));
  program.SetTextMatrix(row, kOpcodeColumn, content.bytes);
}

// A program that fills the whole memory with instructions of one byte.
void FillWithNops(Grid& program) {
  program.SetRows(kAddressSpace);
  for (int row = 0; row < program.Rows(); ++row) WriteRow(program, row, {row, "00"});
}

void BM_SimulatorStep(benchmark::State& state) {
  WatchTables tables(nullptr);
  tables.Load();
  Grid program(nullptr, "Program", kProgramColumns);
  program.SetRows(static_cast<int>(kMixedLoop.size()));
  int row = 0;
  for (const ProgramRow& content : kMixedLoop) WriteRow(program, row++, content);
  WriteProgram(program, tables);
  Machine machine(tables, IgnoreBox);
  machine.StartAt(AddressText(kStart));
  while (state.KeepRunning()) machine.Execute();
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_SimulatorStep);

// What a step cannot do without: three texts of two digits parsed, and formatted again.
void BM_SimulatorBareTexts(benchmark::State& state) {
  std::array<std::string, 3> texts = {"3E", "05", "7F"};
  while (state.KeepRunning()) {
    for (std::string& text : texts) {
      benchmark::DoNotOptimize(text);
      text = PaddedHexText((HexValue(text) + 1) & 0xFF, kByteDigits);
    }
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_SimulatorBareTexts);

void BM_SimulatorOpen(benchmark::State& state) {
  Grid program(nullptr, "Program", kProgramColumns);
  FillWithNops(program);
  while (state.KeepRunning()) {
    WatchWindowDialog dialog(IgnoreBox);
    dialog.Load();
    WriteProgram(program, dialog.tables());
    benchmark::DoNotOptimize(dialog.tables().MemText(0));
  }
}
BENCHMARK(BM_SimulatorOpen)->Unit(benchmark::kMillisecond);

#ifdef __GLIBC__  // Its allocator can tell how much it has given out.
std::size_t BytesInUse() {
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

void BM_SimulatorMemory(benchmark::State& state) {
  double bytes = 0;
  while (state.KeepRunning()) {
    const std::size_t before = BytesInUse();
    WatchWindowDialog dialog(IgnoreBox);
    dialog.Load();
    bytes = static_cast<double>(BytesInUse() - before);
  }
  state.counters["bytes_per_row"] = bytes / (kAddressSpace + 1);
}
BENCHMARK(BM_SimulatorMemory)->Iterations(1)->Unit(benchmark::kMillisecond);
#endif

}  // namespace
}  // namespace quilla
