// The panel's state machine: a table of states with their tips and boxes. `ControlTransfer` is
// the one way to change the task; tools hand in the procedures that show and hide their boxes, and
// what the table and the Esc key mean in their states.
#ifndef QUILLA_PROGRAM_STATE_MACHINE_H_
#define QUILLA_PROGRAM_STATE_MACHINE_H_

#include <functional>
#include <initializer_list>
#include <map>
#include <vector>

#include "program/session.h"

namespace quilla {

/// The procedures that states open and close, one for each box or use of a box.
enum class BoxId {
  kInstruction,
  kData,
  kRegister,
  kNumber,
  kLabel,
  kVariable,
  kFindVariable,
  kReplaceVariable,
  kPlace,
  kFind,
  kReplace,
  kComment,
  kPrintComment,
};

/// What the program table and the Esc key mean in the states of one task.
struct TableTask {
  /// A cell was clicked. Where there is none, a click does nothing.
  std::function<void(int row, int column)> Clicked = nullptr;
  /// The task is broken off: what it marked is marked no more. The panel gets ready afterwards.
  std::function<void()> Cancelled = nullptr;
  /// The columns over which the pointer shows that a click acts. Where there are none, the pointer
  /// stays what it is.
  std::vector<int> LiveColumns = {};
};

class StateMachine {
 public:
  using StatusProcedure = std::function<void(bool)>;

  explicit StateMachine(Session& session);

  /// Registers the procedure that shows (true) or hides (false) a box.
  void SetStatus(BoxId box, StatusProcedure status) { statuses_[box] = std::move(status); }
  /// Registers what happens when a row has been picked in a state that opens no box of its own.
  void SetPicked(PanelState state, std::function<void()> picked) {
    picked_[state] = std::move(picked);
  }
  /// Registers what the table means in these states.
  void SetTableTask(std::initializer_list<PanelState> states, const TableTask& task) {
    for (const PanelState state : states) table_tasks_[state] = task;
  }
  /// Registers what happens last whenever the panel gets ready for entry.
  void SetReady(std::function<void()> ready) { ready_ = std::move(ready); }

  /// Changes the task: menus, boxes and the tip follow. A number that is no state changes the
  /// tip alone.
  void ControlTransfer(PanelState next);
  /// Ends a task: back to program or data mode, whichever the panel is in.
  void ReturnToReady() { ControlTransfer(session_.ReadyState()); }

  /// What the table means now; a task without parts where no tool has registered one.
  const TableTask& CurrentTableTask() const;

  /// Enable or switch off the menus; enabled entries are those that fit the state.
  void FileMenuStatus(bool status);
  void EditMenuStatus(bool status);
  void ToolMenuStatus(bool status);

 private:
  void Status(BoxId box, bool status) const;
  void GetReady(bool data_mode);

  Session& session_;
  std::map<BoxId, StatusProcedure> statuses_;
  std::map<PanelState, std::function<void()>> picked_;
  std::map<PanelState, TableTask> table_tasks_;
  std::function<void()> ready_;
};

}  // namespace quilla

#endif  // QUILLA_PROGRAM_STATE_MACHINE_H_
