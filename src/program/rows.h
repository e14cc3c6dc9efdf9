// The row operations of the program: growing the table, opening lines in it, moving the cursor.
// They keep StringTable as tall as Table1.
#ifndef QUILLA_PROGRAM_ROWS_H_
#define QUILLA_PROGRAM_ROWS_H_

#include "program/session.h"

namespace quilla {

/// A table never has fewer rows than this through its own growth.
inline constexpr int kLeastRows = 32;
/// The rows that the table keeps ahead of the cursor.
inline constexpr int kSpareRows = 10;

class Rows {
 public:
  explicit Rows(Session& session);

  /// Sets both tables to `rows` rows.
  void SetRows(int rows);
  /// Grows the table, so that spare rows lie ahead of `row`.
  void AddRows(int row);
  /// Cuts the table down to the spare rows behind `row`, if that is far enough down.
  void DeleteRows(int row);
  /// Inserts `lines` empty rows before `start_row`; the cursor, the bottom of the selection and
  /// the last line move with them. Gives the row that stood at `start_row`.
  int InsertLine(int start_row, int lines);
  /// Moves the entry cursor. A line is opened above an origin row, and the cursor is then on the
  /// origin. Fails with `kOutsideTable` for a row that the table does not reach.
  void NextLine(int next_row);

 private:
  void Table1_CurrentCellChange();

  Session& session_;
};

}  // namespace quilla

#endif  // QUILLA_PROGRAM_ROWS_H_
