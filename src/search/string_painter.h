// The cells that find and replace work on: placed labels in the Label column, operand strings in
// the Mnemonics column.
#ifndef QUILLA_SEARCH_STRING_PAINTER_H_
#define QUILLA_SEARCH_STRING_PAINTER_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "program/opcode_cell.h"
#include "program/session.h"

namespace quilla {

class StringPainter {
 public:
  explicit StringPainter(Session& session) : session_(session), table_(session.Table1) {}

  /// Whether the row's Label cell holds a label.
  bool HasLabel(int row) const {
    return !table_.TextMatrix(row, kLabelColumn).empty() && !session_.IsOrigin(row);
  }
  bool HasOperand(int row) const { return !session_.OperandOf(row).empty(); }
  /// Whether the row has an operand and an Opcode cell of so many characters.
  bool HasOperandOfLength(int row, std::size_t cell_length) const {
    return HasOperand(row) && table_.TextMatrix(row, kOpcodeColumn).size() == cell_length;
  }
  /// Whether the user has selected the cell.
  bool IsSelected(int row, int column) const {
    return table_.BackColor(row, column) == kPickedColor;
  }
  bool IsCandidate(int row, int column) const {
    return table_.BackColor(row, column) == kCandidateColor;
  }

  void Select(int row, int column) { table_.Paint(row, column, kPickedColor, kBlack); }
  /// Selects a candidate, or makes a candidate of a selected cell; nothing on any other.
  void Toggle(int row, int column);
  /// Takes the colours off all labels and label operands, or off all variable operands.
  void CleanLabelUses();
  void CleanVariableUses() { CleanOperands(kTwoByteCell); }

  void PaintNormal(int row, int column) { table_.Paint(row, column, kNormalColor, kNormalColor); }
  void PaintCandidate(int row, int column) { table_.Paint(row, column, kCandidateColor, kWhite); }
  void PaintFound(int row, int column) { table_.Paint(row, column, kFoundColor, kWhite); }
  /// Paints the cell found if its text matches, else normal. Gives 1 for a match, 0 for none.
  int PaintMatch(int row, int column, bool matches);

  /// Gives the operand of a row another name, in its mnemonic and its comment, and its Opcode
  /// cell the text `cell`.
  void RenameOperand(int row, const std::string& name, const std::string& cell);

  /// Tells how often a string is used; `kind` is "label" or "variable".
  void TellUses(std::string_view kind, const std::string& name, int uses);

 private:
  /// Takes the colours off the operands of all rows whose Opcode cell has so many characters.
  void CleanOperands(std::size_t cell_length);

  Session& session_;
  Grid& table_;
};

}  // namespace quilla

#endif  // QUILLA_SEARCH_STRING_PAINTER_H_
