#include "search/string_painter.h"

#include "program/default_comment.h"
#include "program/mnemonic.h"

namespace quilla {

void StringPainter::Toggle(int row, int column) {
  if (IsSelected(row, column)) {
    PaintCandidate(row, column);
  } else if (IsCandidate(row, column)) {
    Select(row, column);
  }
}

void StringPainter::CleanLabelUses() {
  for (int row = 1; row < table_.Rows(); ++row) {
    if (HasLabel(row)) PaintNormal(row, kLabelColumn);
  }
  CleanOperands(kThreeByteCell);
}

void StringPainter::CleanOperands(std::size_t cell_length) {
  for (int row = 1; row < table_.Rows(); ++row) {
    if (HasOperandOfLength(row, cell_length)) PaintNormal(row, kMnemonicColumn);
  }
}

int StringPainter::PaintMatch(int row, int column, bool matches) {
  if (matches) {
    PaintFound(row, column);
  } else {
    PaintNormal(row, column);
  }
  return matches ? 1 : 0;
}

void StringPainter::RenameOperand(int row, const std::string& name, const std::string& cell) {
  table_.SetTextMatrix(
      row, kMnemonicColumn,
      WithOperand(table_.TextMatrix(row, kMnemonicColumn), session_.OperandOf(row), name));
  table_.SetTextMatrix(row, kOpcodeColumn, cell);
  session_.StringTable.SetTextMatrix(row, 0, name);
  ApplyDefaultComment(session_, row);
}

void StringPainter::TellUses(std::string_view kind, const std::string& name, int uses) {
  const std::string subject = "The " + std::string(kind) + " '" + name + "' is ";
  if (uses == 0) {
    session_.ShowInformation(subject + "not used in the program.");
  } else if (uses == 1) {
    session_.ShowInformation(subject + "used 1 time in the program.");
  } else {
    session_.ShowInformation(subject + "used " + std::to_string(uses) + " times in the program.");
  }
}

}  // namespace quilla
