#include "print/page_layouts.h"

#include <algorithm>
#include <iterator>

namespace quilla {
namespace {

constexpr int kLabelColWidthList[] = {1020, 1020, 900};  // in 1/1440 inch
constexpr CellColor kShade{0xD0D0D0};

constexpr int kPairStep = static_cast<int>(std::size(kLabelColWidthList));

}  // namespace

void PageLayout::WriteHead(const Session& session, const PrintState& state) {
  PageLabel.set_caption(std::to_string(state.PrintPageNumber));
  TotalPagesLabel.set_caption(std::to_string(state.TotalPageCount));
  CommentLabel.set_caption(state.PrintCommentString);
  NameLabel.set_caption(session.FileName);
}

PrintPanel::PrintPanel() : PageLayout("PrintPanel") {
  Table.SetRows(kRowsOfPage);
  for (int column = 0; column < Table.Cols(); ++column) {
    Table.SetColWidth(column, kProgramColWidthList[column]);
    Table.SetColAlignment(column, column <= kAddressColumn ? kAlignCentre : kAlignLeft);
  }
}

int PrintPanel::Fill(const Session& session, const PrintState& state) {
  WriteHead(session, state);
  Table.Clear();
  const int rows = std::min(kRowsOfPage, state.LastProgramRow + 1 - state.PrintCursor);
  for (int row = 0; row < rows; ++row) CopyRow(session, state.PrintCursor + row, row);
  return rows;
}

void PrintPanel::CopyRow(const Session& session, int from, int to) {
  for (int column = 0; column < kProgramColumns; ++column) {
    Table.SetTextMatrix(to, column, session.Table1.TextMatrix(from, column));
    const bool is_label = column == kLabelColumn && !Table.TextMatrix(to, kLabelColumn).empty();
    const bool is_operand = column == kMnemonicColumn && !session.OperandOf(from).empty();
    if (is_label || is_operand || session.IsOrigin(from)) Table.PaintBack(to, column, kShade);
  }
}

PrintLabelPanel::PrintLabelPanel() : PageLayout("PrintLabelPanel") {
  Table.SetRows(kRowsOfLabelPage);
  for (int column = 0; column < Table.Cols(); ++column) {
    Table.SetColWidth(column, kLabelColWidthList[column % kPairStep]);
    Table.SetColAlignment(column, kAlignCentre);
  }
}

int PrintLabelPanel::Fill(const Session& session, const PrintState& state) {
  WriteHead(session, state);
  Table.Clear();
  const auto first = static_cast<std::size_t>(state.PrintCursor);
  const std::size_t count =
      std::min<std::size_t>(kStringsOfPage, state.PrintStrings.size() - first);
  for (std::size_t i = 0; i < count; ++i) {
    const int row = static_cast<int>(i) / kPairsOfRow;
    const int column = static_cast<int>(i) % kPairsOfRow * kPairStep;
    Table.SetTextMatrix(row, column, state.PrintStrings[first + i]);
    Table.SetTextMatrix(row, column + 1, state.PrintEqtList[first + i]);
  }
  return static_cast<int>(count);
}

}  // namespace quilla
