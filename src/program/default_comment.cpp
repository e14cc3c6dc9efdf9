#include "program/default_comment.h"

#include <string>

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
  std::string comment(BeforeList(opcode));
  if (cell.size() != kOneByteCell) comment.append(session.OperandOf(row)).append(AfterList(opcode));
  table.SetTextMatrix(row, kCommentColumn, std::move(comment));
}

}  // namespace quilla
