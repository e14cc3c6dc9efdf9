// The start of a simulation: addresses are assigned, and a moment later the program's bytes are
// written into the memory of the watch window, which is then shown.
#ifndef QUILLA_SIMULATOR_SIMULATION_START_H_
#define QUILLA_SIMULATOR_SIMULATION_START_H_

#include <functional>

#include "platform/grid.h"
#include "platform/timer.h"
#include "program/session.h"
#include "simulator/watch_window_dialog.h"

namespace quilla {

/// Writes the bytes of every program row into the memory cells at its address. Rows whose opcode
/// text has none of the lengths of one to three bytes are skipped. Fails with `kNotANumber` at a
/// row without an address, and with `kOutsideTable` past the last cell; the rows above are written.
void WriteProgram(const Grid& Table1, WatchTables& tables);

class SimulationStart {
 public:
  /// `assign_address` assigns all addresses; its argument allows it to report errors.
  SimulationStart(Session& session, WatchWindowDialog& dialog,
                  std::function<void(bool)> assign_address);

 private:
  static constexpr int kDeferralMs = 10;

  void SimulationView_Click();
  void SimulationTimer_Timer();

  Session& session_;
  WatchWindowDialog& dialog_;
  std::function<void(bool)> assign_address_;
  Timer SimulationTimer_{session_.outside.clock, "SimulationTimer", kDeferralMs};
};

}  // namespace quilla

#endif  // QUILLA_SIMULATOR_SIMULATION_START_H_
