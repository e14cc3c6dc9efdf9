// The window on whole programs: from what the user does to the end of the paint that shows it, and
// the same on the models alone in the same run. What is left is the window's part.
#include <benchmark/benchmark.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QKeyEvent>
#include <QSize>
#include <algorithm>
#include <cstddef>
#include <functional>
#include <limits>
#include <memory>
#include <string>

#include "isa/instruction_set.h"
#include "panel_fixture.h"
#include "scenario.h"
#include "window/widget_hands.h"

namespace quilla::bench {
namespace {

/// The longest time in milliseconds from a key, and from a command, to the end of the paint.
constexpr double kMostForKey = 8;
constexpr double kMostForCommand = 16;
constexpr double kMilliseconds = 1e3;
constexpr QSize kWindowSize(1366, 768);
constexpr int kFewRows = 16;
constexpr const char* kOpened = "program.baf";

/// Hands that let the window paint before they go on, and that press buttons with the keyboard.
class PaintingHands final : public robot::WidgetHands {
 public:
  using WidgetHands::WidgetHands;

  void Resize(const Form& form, const QSize& size) { WindowOf(form).resize(size); }

  void Click(Control& control) override {
    if (dynamic_cast<Button*>(&control) == nullptr) return WidgetHands::Click(control);
    QWidget& widget = *shown().at(control.form()).mirror->WidgetOf(control);
    widget.setFocus();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&widget, &press);
    Settle();
  }

 protected:
  void Settle() override {
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
    }
    WidgetHands::Settle();
  }
};

/// The window gets a usual size: the screen of no display is a small one.
std::unique_ptr<robot::Hands> MakePaintingHands(robot::ScriptedEventLoop& event_loop) {
  auto hands = std::make_unique<PaintingHands>(event_loop);
  event_loop.on_open = [open = event_loop.on_open, hands = hands.get()](Form& form) {
    open(form);
    hands->Resize(form, kWindowSize);
  };
  return hands;
}

/// What is done on either panel.
using Act = std::function<void(PanelFixture&)>;

/// Times `task` on a panel with a window and on one without, each time after an untimed `prepare`.
/// The counters are least times in milliseconds; the benchmark's own time is that with the window.
void RunInWindow(benchmark::State& state, double limit, const Act& prepare, const Act& task,
                 const std::function<bool(PanelFixture&)>& is_done) {
  PanelFixture models(RowsOf(state));
  PanelFixture window(RowsOf(state), MakePaintingHands);
  double least = std::numeric_limits<double>::infinity();
  double least_of_models = least;
  while (state.KeepRunning()) {
    prepare(models);
    prepare(window);
    const double seconds = SecondsOf([&] { task(window); });
    state.SetIterationTime(seconds);
    least = std::min(least, seconds);
    least_of_models = std::min(least_of_models, SecondsOf([&] { task(models); }));
  }
  if (!is_done(window) || !is_done(models)) state.SkipWithError("the task was not done");
  state.counters["least_ms"] = least * kMilliseconds;
  state.counters["window_ms"] = (least - least_of_models) * kMilliseconds;
  if (least * kMilliseconds > limit) state.SetLabel("OVER THE LIMIT");
}

void OverSizes(benchmark::internal::Benchmark* benchmark) {
  for (const int rows : {1024, 8192, 65536}) benchmark->Arg(rows);
  benchmark->UseManualTime()->Unit(benchmark::kMillisecond);
}

/// The key that writes a whole row.
Button& NopKey(PanelFixture& panel) {
  return Find(panel.form(), "INST", FindInstructionKey("NOP"));
}

void BM_KeyInOverwriteMode(benchmark::State& state) {
  RunInWindow(
      state, kMostForKey,
      [](PanelFixture& panel) {
        panel.ClickCell(panel.session().Table1, panel.MiddleRow() + 2, kMnemonicColumn);
      },
      [](PanelFixture& panel) { panel.Click(NopKey(panel)); },
      [](PanelFixture& panel) {
        const int row = panel.MiddleRow() + 2;
        return panel.session().Table1.TextMatrix(row, kMnemonicColumn) == "NOP" &&
               panel.session().CurrentRow == row + 1;
      });
}
BENCHMARK(BM_KeyInOverwriteMode)->Apply(OverSizes);

// The row that the key has written goes before the next time; the row opened for the next stays.
void BM_KeyInInsertMode(benchmark::State& state) {
  RunInWindow(
      state, kMostForKey,
      [](PanelFixture& panel) {
        Session& session = panel.session();
        if (session.IsInsertMode()) {
          panel.DeletePasted();
        } else {
          panel.ClickCell(session.Table1, panel.PasteRow(), kMnemonicColumn);
        }
        if (!session.IsInsertMode()) panel.Click(session.menu.WriteMode);
      },
      [](PanelFixture& panel) { panel.Click(NopKey(panel)); },
      [](PanelFixture& panel) {
        return panel.session().IsInsertMode() && panel.PastedRows() == 2 &&
               panel.session().Table1.TextMatrix(panel.PasteRow(), kMnemonicColumn) == "NOP";
      });
}
BENCHMARK(BM_KeyInInsertMode)->Apply(OverSizes);

void BM_OpenFileInWindow(benchmark::State& state) {
  const robot::ScratchFolder folder("");
  RunInWindow(
      state, kMostForCommand,
      [](PanelFixture& panel) {
        Session& session = panel.session();
        panel.AssignAddresses();
        session.FileOrigin = FileOrigin::kSaved;
        session.ProjectPath = kOpened;
        panel.Click(session.menu.SaveFile);
        panel.outside().file_dialogs.Queue(kOpened);
      },
      [](PanelFixture& panel) { panel.Click(panel.session().menu.OpenFile); },
      [](PanelFixture& panel) { return panel.session().TipsLabel.caption() == "File Opened."; });
}
BENCHMARK(BM_OpenFileInWindow)->Apply(OverSizes);

void BM_PlaceLabelInWindow(benchmark::State& state) {
  RunInWindow(
      state, kMostForCommand,
      [](PanelFixture& panel) {
        Session& session = panel.session();
        auto& done = Find(panel.form(), "PlaceDoneButton");
        if (done.IsVisible()) panel.Click(done);
        panel.Click(session.menu.PlaceLabelTool);
        const int rows[] = {panel.MiddleRow() + kFreeRows[0], panel.MiddleRow() + kFreeRows[1]};
        const bool at_first = session.Table1.TextMatrix(rows[0], kLabelColumn).empty();
        panel.ClickCell(session.Table1, rows[at_first ? 0 : 1], kLabelColumn);
        panel.Click(Find<Option>(panel.form(), "ExistingPlaceOption"));
        session.PlaceCombo.Pick(session.PlaceCombo.Count() / 2);
        panel.outside().boxes.Queue(BoxAnswer::kYes);
      },
      [](PanelFixture& panel) { panel.Click(Find(panel.form(), "PlaceAcceptButton")); },
      [](PanelFixture& panel) {
        const Grid& table = panel.session().Table1;
        return table.TextMatrix(panel.MiddleRow() + kFreeRows[0], kLabelColumn).empty() !=
               table.TextMatrix(panel.MiddleRow() + kFreeRows[1], kLabelColumn).empty();
      });
}
BENCHMARK(BM_PlaceLabelInWindow)->Apply(OverSizes);

void PasteInWindow(benchmark::State& state, int rows) {
  RunInWindow(
      state, kMostForCommand,
      [rows](PanelFixture& panel) {
        panel.DeletePasted();
        panel.CopyRows(rows);
      },
      [](PanelFixture& panel) { panel.Click(panel.session().menu.PasteEdit); },
      [rows](PanelFixture& panel) { return panel.PastedRows() == rows; });
}

void BM_PasteTenthInWindow(benchmark::State& state) { PasteInWindow(state, RowsOf(state) / 10); }
BENCHMARK(BM_PasteTenthInWindow)->Apply(OverSizes);

void BM_PasteFewInWindow(benchmark::State& state) { PasteInWindow(state, kFewRows); }
BENCHMARK(BM_PasteFewInWindow)->Apply(OverSizes);

}  // namespace
}  // namespace quilla::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
