// What a print run works with, and how it counts its pages.
#ifndef QUILLA_PRINT_PRINT_STATE_H_
#define QUILLA_PRINT_PRINT_STATE_H_

#include <string>
#include <vector>

#include "program/session.h"

namespace quilla {

/// The rows of a listing page.
inline constexpr int kRowsOfPage = 32;
/// A page of equivalents: four strings to a row.
inline constexpr int kPairsOfRow = 4;
inline constexpr int kRowsOfLabelPage = 30;
inline constexpr int kStringsOfPage = kPairsOfRow * kRowsOfLabelPage;

struct PrintState {
  /// The last row of `Table1` that holds anything; 0 for an empty table.
  int LastProgramRow = 0;
  /// Pages of the listing, and of listing and equivalents together.
  int ProgramPageCount = 0;
  int TotalPageCount = 0;
  /// The page under way, from 1, and the next row of `Table1` or entry of `PrintStrings`.
  int PrintPageNumber = 1;
  int PrintCursor = 0;
  /// The line that stands on every page.
  std::string PrintCommentString;
  /// All strings and their equivalents, labels first.
  std::vector<std::string> PrintStrings;
  std::vector<std::string> PrintEqtList;

  /// Counts rows, strings and pages of the program as it stands.
  void Count(const Session& session);
};

}  // namespace quilla

#endif  // QUILLA_PRINT_PRINT_STATE_H_
