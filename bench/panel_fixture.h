// A panel with a full program in its table, played without a window, and the measuring of a task
// on it beside the plainest work on the same data.
#ifndef QUILLA_BENCH_PANEL_FIXTURE_H_
#define QUILLA_BENCH_PANEL_FIXTURE_H_

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "panel/programming_panel.h"
#include "program/rows.h"
#include "program/session.h"
#include "program/state_machine.h"
#include "robot/hands.h"
#include "robot/scripted_outside.h"
#include "symbols/address_assignment.h"
#include "symbols/origins.h"

namespace quilla::bench {

/// The most that a task may cost: passes over the table for any of them, and plain transfers of
/// the same bytes for those that read or write a file.
inline constexpr double kMostPasses = 5;
inline constexpr double kMostTransfers = 5;

/// Every sixteenth row has a jump, and every eighth a label.
inline constexpr int kRowsPerGroup = 16;
inline constexpr int kLabelsPerGroup = 2;
/// The row of a group with its jump, and two of its rows without an instruction.
inline constexpr int kJumpRow = 13;
inline constexpr int kFreeRows[] = {5, 8};

/// A session with the parts that the procedures on whole tables need, joined as the panel joins
/// them.
struct SessionParts {
  std::ostream transcript{nullptr};
  robot::ScriptedOutside outside{transcript};
  Session session{outside.ports};
  Rows rows{session};
  StateMachine states{session};
  Origins origins{session, states, rows};
  AddressAssignment addresses{session, states, rows};
};

/// The rows of the table that a benchmark is run with.
inline int RowsOf(const benchmark::State& state) { return static_cast<int>(state.range(0)); }

/// A name for a string: a letter and a number.
std::string NumberedName(char letter, int number);

/// Fills the empty table of a session with a program of `rows` rows, a multiple of kRowsPerGroup
/// up to 65,536. A group of sixteen rows has two placed labels, a jump to a label, an instruction
/// with a variable, ten of one byte and four empty rows, so that the greatest program takes all
/// addresses from 1000h to FFFFh. Blocks are 1024 rows long.
void FillProgram(Session& session, int rows);

/// A control of a form, which must have it.
template <typename Model = Button>
Model& Find(const Form& form, std::string_view name, int index = Control::kNoIndex) {
  return dynamic_cast<Model&>(*form.Find(name, index));
}

/// Makes the hands for a panel that is not shown yet.
using HandsMaker = std::function<std::unique_ptr<robot::Hands>(robot::ScriptedEventLoop&)>;

std::unique_ptr<robot::Hands> MakeModelHands(robot::ScriptedEventLoop& event_loop);

/// The program in a panel of its own, its addresses assigned, and the hands to work on it.
class PanelFixture {
 public:
  explicit PanelFixture(int rows, const HandsMaker& make_hands = MakeModelHands);

  Session& session() { return panel_.session(); }
  robot::ScriptedOutside& outside() { return outside_; }
  Form& form() { return panel_.form(); }
  Form& dialog(std::string_view name);

  void Click(Control& control) { hands_->Click(control); }
  void ClickCell(Grid& grid, int row, int column) {
    hands_->Drag(grid, {row, column}, {row, column});
  }
  /// Drags over the mnemonics of these rows.
  void SelectRows(int first, int last);
  /// Assigns all addresses, as the menu command does.
  void AssignAddresses();

  /// The first row of the group in the middle of the table, and the row there to paste at.
  int MiddleRow() const { return rows_ / 2; }
  int PasteRow() const { return MiddleRow() + kFreeRows[0]; }
  /// Copies so many rows to the clipboard, and moves the cursor to the middle.
  void CopyRows(int count);
  void CopyTenth() { CopyRows(rows_ / 10); }
  /// How many rows have been pasted into the middle of the table.
  int PastedRows() { return session().Table1.Rows() - rows_; }
  /// Deletes them, and moves the cursor back.
  void DeletePasted();
  bool IsTenthPasted() { return PastedRows() == rows_ / 10; }

 private:
  int rows_;
  std::ostream transcript_{nullptr};
  robot::ScriptedOutside outside_{transcript_};
  ProgrammingPanel panel_{outside_.ports};
  std::unique_ptr<robot::Hands> hands_;
};

/// The time of the processor that `work` takes, done so many times, for each of them: what other
/// programs take of it meanwhile does not count.
double SecondsOf(const std::function<void()>& work, int times = 1);

/// Plain work that a task is held against: its time is the unit, `most` of it the limit.
struct Measure {
  const char* counter;
  std::function<void()> work;
  double most;
  int times = 1;  // so often is the work done to take its time, which the clock measures in 1 us
};

/// The pass over a program that reads every character of every cell and of the operand strings.
Measure PassOver(const Session& session);

/// Times `task`, each time after an untimed `prepare`, and each measure beside it. The counter of
/// a measure is the least time of the task in units of the least time of the measure; a label
/// tells where it is over the limit. The benchmark fails unless `is_done` finds the task done.
void Run(benchmark::State& state, const std::vector<Measure>& measures,
         const std::function<void()>& prepare, const std::function<void()>& task,
         const std::function<bool()>& is_done);

/// The tables that are measured, and the linear growth that is fitted to their times.
void OverTableSizes(benchmark::internal::Benchmark* benchmark);

}  // namespace quilla::bench

#endif  // QUILLA_BENCH_PANEL_FIXTURE_H_
