// The end of an entered line, common to all entry tools: opcode, default comment, next line.
#ifndef QUILLA_PROGRAM_ENTRY_LINE_H_
#define QUILLA_PROGRAM_ENTRY_LINE_H_

#include <string>

#include "program/rows.h"
#include "program/session.h"

namespace quilla {

class EntryLine {
 public:
  EntryLine(Session& session, Rows& rows) : session_(session), rows_(rows) {}

  /// Writes the opcode being built to the row's Opcode cell.
  void DisplayOpcode(int row);
  /// Adds a string operand to the row under the cursor: `blanks` and its name behind the mnemonic,
  /// its `bytes` behind the opcode, and its name as the operand string.
  void AddOperand(const char* blanks, const std::string& name, const std::string& bytes);
  /// Finishes the row under the cursor: its opcode, then as Complete does.
  void FinishLine();
  /// Gives the row under the cursor its default comment and moves on to the next line.
  void Complete();
  /// Moves the cursor to the next line. In Insert mode, above an origin and at the end of the
  /// table a line is opened for it.
  void MoveOn();

 private:
  Session& session_;
  Rows& rows_;
};

}  // namespace quilla

#endif  // QUILLA_PROGRAM_ENTRY_LINE_H_
