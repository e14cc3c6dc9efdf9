// The procedures of the panel on whole programs: addresses, labels, lines, the assembler's stages,
// and the entry of one instruction.
#include <benchmark/benchmark.h>

#include <ostream>

#include "assembler/assembler.h"
#include "isa/instruction_set.h"
#include "panel_fixture.h"
#include "symbols/origins.h"

namespace quilla::bench {
namespace {

void Nothing() {}

/// A session with a full program, and the parts that assemble it.
struct Parts : SessionParts {
  explicit Parts(int row_count) { FillProgram(session, row_count); }

  StringLists strings{session, states};
  RescueFile rescue{session};
  Assembler assembler{session, states, addresses, strings, rescue};
};

void BM_AssignAddress(benchmark::State& state) {
  Parts parts(RowsOf(state));
  const Session& session = parts.session;
  Run(
      state, {PassOver(session)}, Nothing, [&] { parts.addresses.Assign_Address(true); },
      [&] { return !session.AddressError && !session.LastAddressList.IsEmpty(); });
}
BENCHMARK(BM_AssignAddress)->Apply(OverTableSizes);

void BM_UpdateLabels(benchmark::State& state) {
  Parts parts(RowsOf(state));
  const Session& session = parts.session;
  Run(
      state, {PassOver(session)}, Nothing, [&] { parts.strings.UpdateLabels(); },
      [&] { return session.LabelPlacedList.Find(kNoFlag) < 0; });
}
BENCHMARK(BM_UpdateLabels)->Apply(OverTableSizes);

// One string in eight is unused.
void BM_DeleteUnusedLabels(benchmark::State& state) {
  Parts parts(RowsOf(state));
  Session& session = parts.session;
  const int labels = session.LabelCombo.Count();
  const int unused_labels = labels / 8;
  const int unused_variables = session.XXCombo.Count() / 8;
  Run(
      state, {PassOver(session)},
      [&] {
        for (int i = 0; i < unused_labels; ++i) {
          session.AddLabel({.name = NumberedName('u', i),
                            .placed = kNoFlag,
                            .used = kNoFlag,
                            .line = kNoFlag,
                            .equivalent = kUnknownAddress});
        }
        for (int i = 0; i < unused_variables; ++i) {
          session.XXCombo.Add(NumberedName('w', i));
          session.XXEqtList.Add(kUnknownByte);
        }
      },
      [&] { parts.strings.DeleteUnusedLabels_Click(); },
      [&] { return session.LabelCombo.Count() == labels; });
}
BENCHMARK(BM_DeleteUnusedLabels)->Apply(OverTableSizes);

void BM_InsertLine(benchmark::State& state) {
  Parts parts(RowsOf(state));
  Session& session = parts.session;
  const int row_count = session.Table1.Rows();
  Run(
      state, {PassOver(session)},
      [&] {
        if (session.Table1.Rows() == row_count) return;
        session.Table1.RemoveRows(1, 1);
        session.StringTable.RemoveRows(1, 1);
      },
      [&] { parts.rows.InsertLine(1, 1); }, [&] { return session.Table1.Rows() == row_count + 1; });
}
BENCHMARK(BM_InsertLine)->Apply(OverTableSizes);

void BM_Assemble(benchmark::State& state) {
  Parts parts(RowsOf(state));
  parts.addresses.Assign_Address(true);
  Run(
      state, {PassOver(parts.session)}, Nothing, [&] { parts.assembler.Assemble(); },
      [&] { return parts.session.HexList.Count() > RowsOf(state) / kRowsPerGroup / 2; });
}
BENCHMARK(BM_Assemble)->Apply(OverTableSizes);

// A jump to a label that is known, entered by its keys in the middle of the table.
void BM_EnterInstruction(benchmark::State& state) {
  PanelFixture panel(RowsOf(state));
  Session& session = panel.session();
  auto& jump_key = Find(panel.form(), "INST", FindInstructionKey("JMP"));
  auto& known = Find<Option>(panel.form(), "ExistingLabelOption");
  auto& accept = Find(panel.form(), "LabelAcceptButton");
  const int row = session.Table1.Rows() / 2 + 2;
  Run(
      state, {PassOver(session)}, [&] { panel.ClickCell(session.Table1, row, kMnemonicColumn); },
      [&] {
        panel.Click(jump_key);
        panel.Click(known);
        session.LabelCombo.Pick(session.LabelCombo.Count() - 1);
        panel.Click(accept);
      },
      [&] { return session.OperandOf(row) == session.LabelCombo.text(); });
}
BENCHMARK(BM_EnterInstruction)->Apply(OverTableSizes);

}  // namespace
}  // namespace quilla::bench
