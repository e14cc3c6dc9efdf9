#include "robot/table_record.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quilla::robot {
namespace {

/// A table of two columns from the letters of `rows`: each row has its letter in column 1, a blank
/// stands for an empty row, and a capital is painted.
TableRecord TableOf(std::string_view rows) {
  Grid grid(nullptr, "T", 2);
  grid.SetRows(static_cast<int>(rows.size()));
  for (int row = 0; row < grid.Rows(); ++row) {
    const char letter = rows[static_cast<std::size_t>(row)];
    if (letter != ' ') grid.SetTextMatrix(row, 1, std::string(1, letter));
    if (letter < 'a' && letter != ' ') grid.Paint(row, 1, CellColor(0xFF), kSelectionColor);
  }
  return TableRecord(grid);
}

TableRecord ListOf(std::vector<std::string> items) {
  TextList list(nullptr, "L");
  list.Assign(std::move(items));
  return TableRecord(list);
}

std::string TextsOf(const TableRecord& before, const TableRecord& now) {
  std::ostringstream transcript;
  before.PrintTexts(transcript, "T", now);
  before.PrintColors(transcript, "colors", now);
  return transcript.str();
}

TEST(TableRecordTest, RowsThatCameOrWentMoveTheOthers) {
  const struct {
    std::string_view before;
    std::string_view now;
    std::string text;
  } cases[] = {
      {"abc", "abc", ""},
      {"abc", "axc", "T 1 - \"x\"\n"},
      {"abcd", "axxd", "T 1..2 - \"x\"\n"},
      {"abcd", "xbcx", "T 0 - \"x\"\nT 3 - \"x\"\n"},
      {"abc  ", "axbc  ", "T rows=6 (1 in at 1)\nT 1 - \"x\"\n"},
      {"abcd", "acd", "T rows=3 (1 out at 1)\n"},
      {"abcdef", "xbcddef", "T rows=7 (1 in at 3)\nT 0 - \"x\"\nT 3 - \"d\"\n"},
      {"abcdef", "aycdefx", "T rows=7\nT 1 - \"y\"\nT 6 - \"x\"\n"},
      {"ab", "ab  ", "T rows=4\n"},
      {"ab c", "ab", "T rows=2\n"},
      {"", "  a", "T rows=3\nT 2 - \"a\"\n"},
      {"a A", "  a", "T 0 - \"\"\nT 2 - \"a\"\ncolors 2,1=own\n"},
      {"aXXb", "aXXXb", "T rows=5 (1 in at 3)\nT 3 - \"X\"\ncolors 3,1=0000FF/cursor\n"},
  };
  for (const auto& [before, now, text] : cases) {
    EXPECT_EQ(TextsOf(TableOf(before), TableOf(now)), text) << before << " -> " << now;
  }
}

TEST(TableRecordTest, ColorsOfNeighboursAreOnePiece) {
  Grid grid(nullptr, "T", 3);
  grid.SetRows(4);
  const TableRecord before(grid);
  for (const int row : {0, 1}) {
    for (const int column : {0, 1, 2}) grid.PaintBack(row, column, CellColor(0xE0));
  }
  grid.Paint(1, 2, kSelectionColor, kNormalColor);
  grid.Paint(2, 0, kNormalColor, CellColor(0));
  grid.Paint(3, 0, kNormalColor, CellColor(0));
  EXPECT_EQ(TextsOf(before, TableRecord(grid)),
            "colors 0,0..2=0000E0 1,0..1=0000E0 1,2=cursor/- 2..3,0=-/000000\n");
}

TEST(TableRecordTest, EqualAndCountingEntriesAreOneRun) {
  using List = std::vector<std::string>;
  const struct {
    List before;
    List now;
    std::string text;
  } cases[] = {
      {{}, {"", ""}, "T 0..1=\"\"\n"},
      {{}, {"09FF", "0A00", "0A01", "0A01"}, "T 0..2=\"09FF\"..\"0A01\" 3=\"0A01\"\n"},
      {{}, {"a", "a", "b", "G0", "G1"}, "T 0..1=\"a\" 2=\"b\" 3=\"G0\" 4=\"G1\"\n"},
      {{}, {"FF", "00", "1", "2"}, "T 0=\"FF\" 1=\"00\" 2=\"1\" 3=\"2\"\n"},
      {{"a", "b", "c"}, {"a", "c"}, "T count=2 (1 out at 1)\n"},
      {{"a"}, {}, "T count=0\n"},
  };
  for (const auto& [before, now, text] : cases)
    EXPECT_EQ(TextsOf(ListOf(before), ListOf(now)), text);
}

}  // namespace
}  // namespace quilla::robot
