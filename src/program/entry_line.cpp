#include "program/entry_line.h"

#include "program/default_comment.h"
#include "program/opcode_cell.h"

namespace quilla {

void EntryLine::DisplayOpcode(int row) {
  session_.Table1.SetTextMatrix(row, kOpcodeColumn, OpcodeCell(session_.CurrentOpcode));
}

void EntryLine::AddOperand(const char* blanks, const std::string& name, const std::string& bytes) {
  Grid& table = session_.Table1;
  const int row = session_.CurrentRow;
  table.SetTextMatrix(row, kMnemonicColumn, table.TextMatrix(row, kMnemonicColumn) + blanks + name);
  session_.StringTable.SetTextMatrix(row, 0, name);
  table.SetTextMatrix(row, kOpcodeColumn, table.TextMatrix(row, kOpcodeColumn) + bytes);
}

void EntryLine::FinishLine() {
  DisplayOpcode(session_.CurrentRow);
  Complete();
}

void EntryLine::Complete() {
  ApplyDefaultComment(session_, session_.CurrentRow);
  MoveOn();
}

void EntryLine::MoveOn() {
  const int next = session_.CurrentRow + 1;
  if (next == session_.Table1.Rows() || session_.IsInsertMode() || session_.IsOrigin(next)) {
    rows_.InsertLine(next, 1);
  }
  rows_.NextLine(session_.CurrentRow + 1);
}

}  // namespace quilla
