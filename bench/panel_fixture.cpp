#include "panel_fixture.h"

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <limits>
#include <string>

#include "isa/instruction_set.h"
#include "platform/number_text.h"
#include "program/default_comment.h"
#include "program/opcode_cell.h"
#include "program/rows.h"
#include "robot/model_hands.h"

namespace quilla::bench {
namespace {

constexpr int kFirstAddress = 0x1000;  // the least that the assembler gives a record for
constexpr int kRowsPerBlock = 1024;
constexpr int kBytesPerGroup = 15;
constexpr int kGroupsPerVariable = 4;
constexpr int kLabelStride = 37;  // from the target of a jump to that of the next
constexpr int kByteValues = 256;
constexpr int kPassesTimed = 8;

constexpr int kEmptyRow = -1;
constexpr int kMviA = 0x3E;
constexpr int kJmp = 0xC3;
/// The opcodes of a group, its labels, and the rows that they stand in.
constexpr int kGroup[kRowsPerGroup] = {kEmptyRow, kMviA, 0x47,      0x23, 0x80, kEmptyRow,
                                       0x0D,      0xB7,  kEmptyRow, 0x7E, 0x13, 0x86,
                                       kEmptyRow, kJmp,  0xEB,      0x0F};
constexpr int kLabelRows[kLabelsPerGroup] = {1, 9};

std::string LabelName(int number) { return NumberedName('l', number); }
std::string VariableName(int number) { return NumberedName('v', number); }

void WriteOrigin(Session& session, int row) {
  const int groups = row / kRowsPerGroup;
  session.Table1.SetTextMatrix(row, kLabelColumn, kOrigin);
  session.Table1.SetTextMatrix(row, kAddressColumn,
                               AddressText(kFirstAddress + groups * kBytesPerGroup));
}

void WriteInstruction(Session& session, int row, int opcode, const std::string& operand,
                      const std::string& cell) {
  std::string mnemonic(MnemonicsLUTList(opcode));
  if (!operand.empty()) mnemonic.append("  ").append(operand);
  session.Table1.SetTextMatrix(row, kMnemonicColumn, mnemonic);
  session.Table1.SetTextMatrix(row, kOpcodeColumn, cell);
  session.StringTable.SetTextMatrix(row, 0, operand);
  ApplyDefaultComment(session, row);
}

void WriteGroup(Session& session, int group, int labels) {
  const int first_row = group * kRowsPerGroup;
  if (first_row % kRowsPerBlock == 0) WriteOrigin(session, first_row);
  for (int i = 0; i < kRowsPerGroup; ++i) {
    const std::string cell = kGroup[i] == kEmptyRow ? std::string() : OpcodeCell(kGroup[i]);
    if (kGroup[i] == kMviA) {
      const int variable = group / kGroupsPerVariable;
      WriteInstruction(session, first_row + i, kMviA, VariableName(variable),
                       WithVariable(cell, PaddedHexText(variable % kByteValues, kByteDigits)));
    } else if (kGroup[i] == kJmp) {
      WriteInstruction(session, first_row + i, kJmp, LabelName(group * kLabelStride % labels),
                       WithLabel(cell, kUnknownAddress));
    } else if (kGroup[i] != kEmptyRow) {
      WriteInstruction(session, first_row + i, kGroup[i], {}, cell);
    }
  }
  for (int i = 0; i < kLabelsPerGroup; ++i) {
    session.Table1.SetTextMatrix(first_row + kLabelRows[i], kLabelColumn,
                                 LabelName(group * kLabelsPerGroup + i));
  }
}

}  // namespace

std::string NumberedName(char letter, int number) {
  return std::string(1, letter).append(std::to_string(number));
}

void FillProgram(Session& session, int rows) {
  session.Table1.SetRows(rows);
  session.StringTable.SetRows(rows);
  const int groups = rows / kRowsPerGroup;
  const int labels = groups * kLabelsPerGroup;
  for (int group = 0; group < groups; ++group) WriteGroup(session, group, labels);
  for (int i = 0; i < labels; ++i) {
    session.AddLabel({.name = LabelName(i),
                      .placed = kNoFlag,
                      .used = kNoFlag,
                      .line = kNoFlag,
                      .equivalent = kUnknownAddress});
  }
  for (int i = 0; i < groups; i += kGroupsPerVariable) {
    const int variable = i / kGroupsPerVariable;
    session.XXCombo.Add(VariableName(variable));
    session.XXEqtList.Add(PaddedHexText(variable % kByteValues, kByteDigits));
  }
  session.LastLine = rows - 1;
}

std::unique_ptr<robot::Hands> MakeModelHands(robot::ScriptedEventLoop& event_loop) {
  return std::make_unique<robot::ModelHands>(event_loop);
}

PanelFixture::PanelFixture(int rows, const HandsMaker& make_hands)
    : rows_(rows), hands_(make_hands(outside_.event_loop)) {
  outside_.event_loop.Show(panel_.form());
  FillProgram(session(), rows);
  AssignAddresses();
}

void PanelFixture::AssignAddresses() {
  Click(session().menu.AssignAddress);
  outside_.clock.PassAll();
}

Form& PanelFixture::dialog(std::string_view name) {
  const std::vector<Form*> dialogs = panel_.Dialogs();
  return **std::find_if(dialogs.begin(), dialogs.end(),
                        [name](const Form* dialog) { return dialog->name() == name; });
}

void PanelFixture::SelectRows(int first, int last) {
  hands_->Drag(session().Table1, {first, kMnemonicColumn}, {last, kMnemonicColumn});
}

void PanelFixture::CopyRows(int count) {
  SelectRows(1, count);
  Click(session().menu.CopyEdit);
  ClickCell(session().Table1, PasteRow(), kMnemonicColumn);
}

void PanelFixture::DeletePasted() {
  const int pasted = PastedRows();
  if (pasted == 0) return;
  SelectRows(PasteRow(), PasteRow() + pasted - 1);
  Click(session().menu.DeleteEdit);
  ClickCell(session().Table1, PasteRow(), kMnemonicColumn);
}

double SecondsOf(const std::function<void()>& work, int times) {
  const std::clock_t start = std::clock();
  for (int i = 0; i < times; ++i) work();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / times;
}

Measure PassOver(const Session& session) {
  const auto pass = [&session] {
    std::size_t sum = 0;
    for (const Grid* table : {&session.Table1, &session.StringTable}) {
      for (int row = 0; row < table->Rows(); ++row) {
        for (int column = 0; column < table->Cols(); ++column) {
          for (const char c : table->TextMatrix(row, column)) sum += static_cast<unsigned char>(c);
        }
      }
    }
    benchmark::DoNotOptimize(sum);
  };
  return {"x_pass", pass, kMostPasses, kPassesTimed};
}

void Run(benchmark::State& state, const std::vector<Measure>& measures,
         const std::function<void()>& prepare, const std::function<void()>& task,
         const std::function<bool()>& is_done) {
  double least = std::numeric_limits<double>::infinity();
  std::vector<double> units(measures.size(), least);
  while (state.KeepRunning()) {
    prepare();
    const double seconds = SecondsOf(task);
    state.SetIterationTime(seconds);
    least = std::min(least, seconds);
    for (std::size_t i = 0; i < measures.size(); ++i) {
      units[i] = std::min(units[i], SecondsOf(measures[i].work, measures[i].times));
    }
  }
  if (!is_done()) state.SkipWithError("the task was not done");
  for (std::size_t i = 0; i < measures.size(); ++i) {
    state.counters[measures[i].counter] = least / units[i];
    if (least > measures[i].most * units[i]) state.SetLabel("OVER THE LIMIT");
  }
  state.SetComplexityN(state.range(0));
}

void OverTableSizes(benchmark::internal::Benchmark* benchmark) {
  for (const int rows : {1024, 8192, 65536}) benchmark->Arg(rows);
  benchmark->UseManualTime()->Complexity(benchmark::oN)->Unit(benchmark::kMicrosecond);
}

}  // namespace quilla::bench
