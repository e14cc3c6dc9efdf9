#include "print/print_state.h"

namespace quilla {
namespace {

bool HoldsText(const Grid& table, int row) {
  for (int column = 0; column < kProgramColumns; ++column) {
    if (!table.TextMatrix(row, column).empty()) return true;
  }
  return false;
}

int PagesFor(int count, int of_page) { return (count + of_page - 1) / of_page; }

}  // namespace

void PrintState::Count(const Session& session) {
  LastProgramRow = session.Table1.Rows() - 1;
  while (LastProgramRow > 0 && !HoldsText(session.Table1, LastProgramRow)) --LastProgramRow;
  ProgramPageCount = PagesFor(LastProgramRow + 1, kRowsOfPage);

  PrintStrings.clear();
  PrintEqtList.clear();
  const auto add = [this](const TextList& strings, const TextList& equivalents) {
    for (int i = 0; i < strings.Count(); ++i) {
      PrintStrings.push_back(strings[i]);
      PrintEqtList.push_back(equivalents[i]);
    }
  };
  add(session.LabelCombo, session.LabelEqtList);
  add(session.XXCombo, session.XXEqtList);
  TotalPageCount =
      ProgramPageCount + PagesFor(static_cast<int>(PrintStrings.size()), kStringsOfPage);
}

}  // namespace quilla
