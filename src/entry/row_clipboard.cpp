#include "entry/row_clipboard.h"

#include "program/mnemonic.h"
#include "program/opcode_cell.h"

namespace quilla {
namespace {

/// What stands in the row that a deletion up to the first origin leaves at the table's end.
constexpr const char* kStrayText = "2";
constexpr const char* kGeneratedLabel = "a";

}  // namespace

RowClipboard::RowClipboard(Session& session, StateMachine& states, Rows& rows, StringLists& strings)
    : session_(session), states_(states), rows_(rows), strings_(strings) {
  session_.menu.CopyEdit.Click = [this] { CopyEdit_Click(); };
  session_.menu.CutEdit.Click = [this] { CutEdit_Click(); };
  session_.menu.PasteEdit.Click = [this] { PasteEdit_Click(); };
  session_.menu.DeleteEdit.Click = [this] { DeleteEdit_Click(); };
}

void RowClipboard::CopyMnemonics() {
  session_.SetTip("Copying . . .");
  const int count = session_.SelectionBottom - session_.SelectionTop + 1;
  session_.EditTable.Clear();
  session_.EditTable.SetRows(count);
  session_.EditStringTable.Clear();
  for (int i = 0; i < count; ++i) {
    const int row = session_.SelectionTop + i;
    for (int column = 0; column < kProgramColumns; ++column) {
      session_.EditTable.SetTextMatrix(i, column, session_.Table1.TextMatrix(row, column));
    }
    if (!session_.IsOrigin(row)) session_.EditTable.SetTextMatrix(i, kAddressColumn, {});
    session_.EditStringTable.Add(session_.OperandOf(row));
  }
  states_.EditMenuStatus(true);
}

void RowClipboard::CopyEdit_Click() {
  CopyMnemonics();
  rows_.NextLine(session_.CurrentRow);
  session_.SetTip("Completed copying.");
  session_.FileChanged = true;
}

void RowClipboard::CutEdit_Click() {
  CopyMnemonics();
  DeleteEdit_Click();
  session_.SetTip("Completed cutting.");
  session_.FileChanged = true;
}

void RowClipboard::DeleteEdit_Click() {
  session_.SetTip("Deleting . . .");
  const bool reached_first_origin = session_.SelectionTop < 1;
  if (reached_first_origin) session_.SelectionTop = 1;
  session_.LastLine = RowAfterDelete(session_.LastLine);
  const int return_row = RowAfterDelete(session_.CurrentRow);
  const int top = session_.SelectionTop;
  if (session_.SelectionBottom >= top) {
    session_.Table1.RemoveRows(top, session_.SelectionBottom);
    session_.StringTable.RemoveRows(top, session_.SelectionBottom);
    session_.SelectionBottom = top - 1;
  }
  if (top > session_.Table1.Rows() - 1) rows_.SetRows(session_.Table1.Rows() + kSpareRows);
  if (reached_first_origin) {
    session_.Table1.AddItem(kStrayText);
    session_.StringTable.AddItem(kStrayText);
  }
  session_.SetWriteMode(false);
  strings_.UpdateLabels();
  rows_.NextLine(return_row);
  states_.ReturnToReady();
  session_.SetTip("Completed deleting.");
  session_.FileChanged = true;
}

int RowClipboard::RowAfterDelete(int row) const {
  const int top = session_.SelectionTop;
  const int bottom = session_.SelectionBottom;
  if (bottom < row) return row - (bottom - top + 1);
  return row >= top ? top : row;
}

void RowClipboard::PasteEdit_Click() {
  const int paste_row = session_.CurrentRow;
  const int count = session_.EditTable.Rows();
  session_.SetTip("Pasting . . .");
  rows_.InsertLine(paste_row, count);
  ListIndex labels(session_.LabelCombo);
  ListIndex variables(session_.XXCombo);
  for (int i = 0; i < count; ++i) PasteRow(i, paste_row + i, labels, variables);
  strings_.UpdateLabels();
  rows_.NextLine(paste_row + count);
  states_.ReturnToReady();
  session_.SetTip("Completed pasting.");
  session_.FileChanged = true;
}

void RowClipboard::PasteRow(int clip_row, int row, ListIndex& labels, ListIndex& variables) {
  const Grid& clip = session_.EditTable;
  for (int column = 0; column < kProgramColumns; ++column) {
    session_.Table1.SetTextMatrix(row, column, clip.TextMatrix(clip_row, column));
  }
  const std::string operand = session_.EditStringTable[clip_row];
  session_.StringTable.SetTextMatrix(row, 0, operand);
  const std::string& label = clip.TextMatrix(clip_row, kLabelColumn);
  if (!label.empty() && label != kOrigin && !labels.Contains(label)) {
    AddLabel({.name = label,
              .placed = kYesFlag,
              .used = kNoFlag,
              .line = std::to_string(clip_row),
              .equivalent = kUnknownAddress},
             labels);
  }
  if (operand.empty()) return;
  const std::string& cell = clip.TextMatrix(clip_row, kOpcodeColumn);
  if (!HasVariable(cell)) {
    PasteLabelOperand(clip_row, row, labels);
  } else if (!variables.Contains(operand)) {
    session_.AddVariable(operand, std::string(ByteAt(cell, 1)));
    variables.CatchUp();
  }
}

void RowClipboard::PasteLabelOperand(int clip_row, int row, ListIndex& labels) {
  std::string name = session_.EditStringTable[clip_row];
  const std::string address = AddressIn(session_.EditTable.TextMatrix(clip_row, kOpcodeColumn));
  if (const int known = labels.Find(name); known != ListIndex::kNone) {
    if (session_.LabelEqtList[known] == address) return;
    // The same name would stand for two addresses.
    const auto generated = [this] {
      return std::string(kGeneratedLabel).append(std::to_string(session_.NextLabelNumber));
    };
    while (labels.Contains(generated())) ++session_.NextLabelNumber;
    name = generated();
    RenameOperand(clip_row, row, name);
  }
  AddLabel(
      {.name = name, .placed = kNoFlag, .used = kYesFlag, .line = kNoFlag, .equivalent = address},
      labels);
}

void RowClipboard::RenameOperand(int clip_row, int row, const std::string& new_name) {
  const std::string mnemonic = WithOperand(session_.EditTable.TextMatrix(clip_row, kMnemonicColumn),
                                           session_.EditStringTable[clip_row], new_name);
  session_.EditTable.SetTextMatrix(clip_row, kMnemonicColumn, mnemonic);
  session_.EditStringTable.Set(clip_row, new_name);
  session_.Table1.SetTextMatrix(row, kMnemonicColumn, mnemonic);
  session_.StringTable.SetTextMatrix(row, 0, new_name);
}

void RowClipboard::AddLabel(const LabelRecord& label, ListIndex& labels) {
  session_.AddLabel(label);
  labels.CatchUp();
}

}  // namespace quilla
