// The panel's state machine: a table of states with their tips and boxes. `ControlTransfer` is
// the one way to change the task; tools hand in the procedures that show and hide their boxes.
#ifndef QUILLA_PROGRAM_STATE_MACHINE_H_
#define QUILLA_PROGRAM_STATE_MACHINE_H_

#include <functional>
#include <map>

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
  /// Registers what happens last whenever the panel gets ready for entry.
  void SetReady(std::function<void()> ready) { ready_ = std::move(ready); }

  /// Changes the task: menus, boxes and the tip follow. A number that is no state changes the
  /// tip alone.
  void ControlTransfer(PanelState next);
  /// Ends a task: back to program or data mode, whichever the panel is in.
  void ReturnToReady() { ControlTransfer(session_.ReadyState()); }

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
  std::function<void()> ready_;
};

}  // namespace quilla

#endif  // QUILLA_PROGRAM_STATE_MACHINE_H_
