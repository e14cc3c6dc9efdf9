#include "simulator/simulation_start.h"

#include <string>
#include <utility>

#include "program/opcode_cell.h"

namespace quilla {

void WriteProgram(const Grid& Table1, WatchTables& tables) {
  for (int row = 0; row < Table1.Rows(); ++row) {
    const std::string& bytes = Table1.TextMatrix(row, kOpcodeColumn);
    const int count = ByteCount(bytes);
    if (count == 0) continue;
    const Number address = NumberOf(Table1.TextMatrix(row, kAddressColumn));
    for (int i = 0; i < count; ++i) tables.SetMem(address + i, std::string(ByteAt(bytes, i)));
  }
}

SimulationStart::SimulationStart(Session& session, WatchWindowDialog& dialog,
                                 std::function<void(bool)> assign_address)
    : session_(session), dialog_(dialog), assign_address_(std::move(assign_address)) {
  session_.menu.SimulationView.Click = [this] { SimulationView_Click(); };
  dialog_.form().owner = &session_.ProgrammingPanel;
  SimulationTimer_.Fire = [this] { SimulationTimer_Timer(); };
}

void SimulationStart::SimulationView_Click() {
  assign_address_(true);
  SimulationTimer_.Enable();
}

void SimulationStart::SimulationTimer_Timer() {
  session_.SetTip("Preparing for simulation...");
  dialog_.Load();
  WriteProgram(session_.Table1, dialog_.tables());
  session_.outside.event_loop.Show(dialog_.form());
}

}  // namespace quilla
