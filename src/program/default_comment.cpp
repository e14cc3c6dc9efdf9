#include "program/default_comment.h"

#include <string>
#include <string_view>

#include "isa/instruction_set.h"
#include "program/opcode_cell.h"

namespace quilla {

void ApplyDefaultComment(Session& session, int row) {
  Grid& table = session.Table1;
  if (table.TextMatrix(row, kMnemonicColumn) == kDataMnemonic) {
    table.SetTextMatrix(row, kCommentColumn, "Data Byte.");
    return;
  }
  const std::string& cell = table.TextMatrix(row, kOpcodeColumn);
  if (cell.empty()) return;
  const int opcode = OpcodeOf(cell);
  const std::string_view before = BeforeList(opcode);
  if (cell.size() == kOneByteCell) {
    table.SetTextMatrix(row, kCommentColumn, before);
    return;
  }
  table.JoinTextMatrix(row, kCommentColumn, {before, session.OperandOf(row), AfterList(opcode)});
}

}  // namespace quilla
