// The tools that work in the table, on whole programs: opening and saving the project file, paste,
// find, replace, labels in place, equivalents.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "panel_fixture.h"
#include "platform/number_text.h"
#include "scenario.h"

namespace quilla::bench {
namespace {

constexpr const char* kProject = "program.baf";
constexpr const char* kPlainFile = "plain";

/// Reads a file as plainly as a stream reads lines; `take` is given each of them.
template <typename Take>
void ReadLines(const std::string& path, const Take& take) {
  std::fstream file(path, std::ios::in | std::ios::binary);
  for (std::string line; std::getline(file, line);) take(line);
}

void WriteLines(const std::string& path, const std::vector<std::string>& lines) {
  std::fstream file(path, std::ios::out | std::ios::binary);
  for (const std::string& line : lines) file << line;
}

void SaveUnder(Session& session, const std::string& path) {
  session.FileOrigin = FileOrigin::kSaved;
  session.ProjectPath = path;
  session.menu.SaveFile.Click();
}

// Both files are new ones each time: what it costs to empty an old one is the file system's affair.
void BM_SaveFile(benchmark::State& state) {
  const robot::ScratchFolder folder("");
  PanelFixture panel(RowsOf(state));
  Session& session = panel.session();
  SaveUnder(session, kProject);
  std::vector<std::string> lines;
  ReadLines(kProject, [&](const std::string& line) { lines.push_back(line + '\n'); });
  const Measure plain{"x_fstream", [&] { WriteLines(kPlainFile, lines); }, kMostTransfers};
  Run(
      state, {PassOver(session), plain},
      [&] {
        std::filesystem::remove(kProject);
        std::filesystem::remove(kPlainFile);
        panel.AssignAddresses();
      },
      [&] { session.menu.SaveFile.Click(); },
      [&] { return session.TipsLabel.caption() == "File Saved."; });
}
BENCHMARK(BM_SaveFile)->Apply(OverTableSizes);

void BM_OpenFile(benchmark::State& state) {
  const robot::ScratchFolder folder("");
  PanelFixture panel(RowsOf(state));
  Session& session = panel.session();
  SaveUnder(session, kProject);
  const auto take = [](const std::string& line) { benchmark::DoNotOptimize(line.data()); };
  const Measure plain{"x_fstream", [&] { ReadLines(kProject, take); }, kMostTransfers};
  Run(
      state, {PassOver(session), plain},
      [&] {
        panel.AssignAddresses();
        panel.outside().file_dialogs.Queue(kProject);
      },
      [&] { session.menu.OpenFile.Click(); },
      [&] { return session.TipsLabel.caption() == "File Opened."; });
}
BENCHMARK(BM_OpenFile)->Apply(OverTableSizes);

void BM_Paste(benchmark::State& state) {
  PanelFixture panel(RowsOf(state));
  panel.CopyTenth();
  Run(
      state, {PassOver(panel.session())}, [&] { panel.DeletePasted(); },
      [&] { panel.Click(panel.session().menu.PasteEdit); }, [&] { return panel.IsTenthPasted(); });
}
BENCHMARK(BM_Paste)->Apply(OverTableSizes);

// The labels have other equivalents than when the rows were copied: each jump gets a new label.
void BM_PasteRenaming(benchmark::State& state) {
  PanelFixture panel(RowsOf(state));
  Session& session = panel.session();
  Run(
      state, {PassOver(session)},
      [&] {
        panel.DeletePasted();
        panel.Click(session.menu.DeleteUnusedLabels);
        panel.AssignAddresses();
        panel.CopyTenth();
        session.NextLabelNumber = 1;
        for (int i = 0; i < session.LabelEqtList.Count(); ++i) {
          session.LabelEqtList.Set(i, kUnknownAddress);
        }
      },
      [&] { panel.Click(session.menu.PasteEdit); },
      [&] { return panel.IsTenthPasted() && session.LabelCombo.Find("a1") >= 0; });
}
BENCHMARK(BM_PasteRenaming)->Apply(OverTableSizes);

void BM_FindLabel(benchmark::State& state) {
  PanelFixture panel(RowsOf(state));
  Session& session = panel.session();
  auto& find = Find(panel.form(), "FindButton");
  auto& done = Find(panel.form(), "FindDoneButton");
  Run(
      state, {PassOver(session)}, [&] { panel.Click(done); },
      [&] {
        panel.Click(session.menu.FindLabel);
        session.FindCombo.Pick(session.FindCombo.Count() - 1);
        panel.Click(find);
      },
      [&] { return session.TipsLabel.caption() == "Completed searching for label."; });
}
BENCHMARK(BM_FindLabel)->Apply(OverTableSizes);

// One jump in eight is given the name of another label.
void BM_ReplaceLabel(benchmark::State& state) {
  PanelFixture panel(RowsOf(state));
  Session& session = panel.session();
  auto& known = Find<Option>(panel.form(), "ExistingReplaceOption");
  auto& replace = Find(panel.form(), "ReplaceAcceptButton");
  auto& done = Find(panel.form(), "ReplaceDoneButton");
  int label = 0;
  Run(
      state, {PassOver(session)},
      [&] {
        panel.Click(done);
        panel.Click(session.menu.ReplaceLabel);
        for (int row = kJumpRow; row < session.Table1.Rows(); row += 8 * kRowsPerGroup) {
          panel.ClickCell(session.Table1, row, kMnemonicColumn);
        }
        panel.Click(known);
        session.ReplaceCombo.Pick(label ^= 1);
      },
      [&] { panel.Click(replace); },
      [&] { return session.OperandOf(kJumpRow) == session.LabelCombo[label]; });
}
BENCHMARK(BM_ReplaceLabel)->Apply(OverTableSizes);

// A label moves from one row to another and back.
void BM_PlaceLabel(benchmark::State& state) {
  PanelFixture panel(RowsOf(state));
  Session& session = panel.session();
  auto& known = Find<Option>(panel.form(), "ExistingPlaceOption");
  auto& place = Find(panel.form(), "PlaceAcceptButton");
  auto& done = Find(panel.form(), "PlaceDoneButton");
  std::size_t free_row = 0;
  Run(
      state, {PassOver(session)},
      [&] {
        panel.Click(done);
        panel.Click(session.menu.PlaceLabelTool);
        panel.ClickCell(session.Table1, panel.MiddleRow() + kFreeRows[free_row ^= 1], kLabelColumn);
        panel.Click(known);
        session.PlaceCombo.Pick(session.PlaceCombo.Count() / 2);
        panel.outside().boxes.Queue(BoxAnswer::kYes);
      },
      [&] { panel.Click(place); },
      [&] {
        const int row = panel.MiddleRow() + kFreeRows[free_row];
        return !session.Table1.TextMatrix(row, kLabelColumn).empty();
      });
}
BENCHMARK(BM_PlaceLabel)->Apply(OverTableSizes);

// The whole visit to the dialog: it opens, one label gets another equivalent, and Done.
void BM_ChangeEquivalent(benchmark::State& state) {
  PanelFixture panel(RowsOf(state));
  Session& session = panel.session();
  const Form& dialog = panel.dialog(kRenumberDialog);
  auto& table = Find<Grid>(dialog, "LabelTable");
  auto& accept = Find(dialog, "EqtAcceptButton");
  auto& done = Find(dialog, "DoneButton");
  int digit = 0;
  panel.outside().event_loop.play_command = [&] {
    digit = digit % 15 + 1;
    panel.ClickCell(table, table.Rows() / 2, 0);
    panel.Click(Find(dialog, "NUM", digit));
    panel.Click(accept);
    panel.Click(done);
    return true;
  };
  Run(
      state, {PassOver(session)}, [] {}, [&] { panel.Click(session.menu.EqtOption); },
      [&] { return session.LabelEqtList.Find(AddressText(digit)) >= 0; });
}
BENCHMARK(BM_ChangeEquivalent)->Apply(OverTableSizes);

}  // namespace
}  // namespace quilla::bench
