// Origin rows: each opens a block of the program at its address.
#ifndef QUILLA_SYMBOLS_ORIGINS_H_
#define QUILLA_SYMBOLS_ORIGINS_H_

#include <string>

#include "program/rows.h"
#include "program/session.h"
#include "program/state_machine.h"

namespace quilla {

class Origins {
 public:
  Origins(Session& session, StateMachine& states, Rows& rows);

  /// Puts an origin with this address at the cursor, or in row 0 of a table without origins.
  /// False if the address is taken: the user has been told, and nothing is changed.
  bool AddOrigin(const std::string& address);
  /// Gives the origin in `ClickedRow` another address. False if the address is taken: the user
  /// has been told, and OriginList lacks the old address until the next UpdateOrigins.
  bool ChangeOrigin(const std::string& address);

  /// Opens the address of an origin row for a change; nothing on another row.
  void ClickLabel(int row);

  /// Rebuilds OriginList from the table and paints the origin rows.
  void UpdateOrigins();
  /// Paints the cells of a row as those of an origin. Fails with `kOutsideTable`.
  void ColorOrigin(int row);

 private:
  bool IsTaken(const std::string& address);

  Session& session_;
  StateMachine& states_;
  Rows& rows_;
};

}  // namespace quilla

#endif  // QUILLA_SYMBOLS_ORIGINS_H_
