// Assigning addresses: every row its address, every placed label its equivalent, every label
// operand its bytes, and the blocks checked against each other.
#ifndef QUILLA_SYMBOLS_ADDRESS_ASSIGNMENT_H_
#define QUILLA_SYMBOLS_ADDRESS_ASSIGNMENT_H_

#include <cstdint>
#include <string>

#include "platform/list_index.h"
#include "platform/timer.h"
#include "program/rows.h"
#include "program/session.h"
#include "program/state_machine.h"

namespace quilla {

class AddressAssignment {
 public:
  AddressAssignment(Session& session, StateMachine& states, Rows& rows);

  /// Assigns all addresses and reports the first fault that it finds; the panel is ready
  /// afterwards unless a fault ended it early. The quiet form (false) does the first block alone
  /// and checks nothing but the address range. Faults are told to the user and leave
  /// `AddressError` set. Fails with `kNotANumber` for an origin that is no number.
  void Assign_Address(bool AddressMessageEnable);

 private:
  static constexpr int kDelayMs = 10;

  void AssignAddress_Click();
  bool CheckStrings(const ListIndex& labels);
  /// Assigns the block whose origin is in `row`. Gives the row that ends it.
  int AssignBlock(int row, const ListIndex& labels, std::int64_t& last_address);
  void PatchLabelOperands(const ListIndex& labels);
  void CheckOverlaps();
  void ReportError(const std::string& text);

  Session& session_;
  StateMachine& states_;
  Rows& rows_;
  Timer AddressTimer_{session_.outside.clock, "AddressTimer", kDelayMs};
};

/// Told where a command makes addresses stale that were assigned before. Addresses are assigned
/// anew whenever a command needs them, so there is nothing to clear.
inline void ClearAddress() {}

}  // namespace quilla

#endif  // QUILLA_SYMBOLS_ADDRESS_ASSIGNMENT_H_
