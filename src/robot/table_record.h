// What the cells of a table or the entries of a list were when they were last looked at, and how
// they differ from that now.
#ifndef QUILLA_ROBOT_TABLE_RECORD_H_
#define QUILLA_ROBOT_TABLE_RECORD_H_

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "platform/grid.h"
#include "platform/text_list.h"

namespace quilla::robot {

class TableRecord {
 public:
  TableRecord() = default;
  explicit TableRecord(const Grid& grid);
  explicit TableRecord(const TextList& list);
  /// The entries of lists of one length side by side, each list a column.
  static TableRecord SideBySide(const std::vector<TableRecord>& lists);

  /// A text that is written as this word, without quotes, since it follows from the other cells.
  static constexpr const char* kDefault =
      "\x01"
      "default";
  void SetText(int row, int column, std::string text) {
    cells_[static_cast<std::size_t>(row) * columns_ + static_cast<std::size_t>(column)].text =
        std::move(text);
  }

  int Rows() const { return static_cast<int>(cells_.size() / columns_); }
  bool operator==(const TableRecord&) const = default;
  int Columns() const { return static_cast<int>(columns_); }
  /// Whether nothing is different now.
  bool Matches(const Grid& grid) const;
  bool Matches(const TextList& list) const;

  /// Writes how `now` differs from this record: the number of rows, and the texts that are others.
  /// Where rows have come or gone in one place, the rows behind them are compared with what they
  /// were, not with what stood at their number; the place is told unless it is the end.
  void PrintTexts(std::ostream& transcript, const std::string& name, const TableRecord& now) const;
  /// Writes the colours that are others.
  void PrintColors(std::ostream& transcript, const std::string& name, const TableRecord& now) const;

 private:
  struct CellRecord {
    std::string text;
    CellColor back;
    CellColor fore;
    bool operator==(const CellRecord&) const = default;
  };
  /// Cells side by side that have become of one colour.
  struct ColumnColor {
    int first;
    int last;
    std::string name;
    bool operator==(const ColumnColor&) const = default;
  };
  using Colors = std::vector<ColumnColor>;
  /// Where rows have come (`more` above 0) or gone (below 0).
  struct Shift {
    int at = 0;
    int more = 0;
    /// Whether the row has come.
    bool IsNew(int row) const { return row >= at && row < at + more; }
  };

  const CellRecord* CellsOf(int row) const {
    return cells_.data() + static_cast<std::size_t>(row) * columns_;
  }
  /// The cells of the row that stands at `row` now, null for one that has come.
  const CellRecord* Before(Shift shift, int row) const;
  Shift ShiftTo(const TableRecord& now) const;
  /// The number of rows with another cell.
  int ChangedRows(const TableRecord& now, Shift shift) const;
  /// The texts of a row, nothing for each that is the same, as far as there are others.
  std::vector<std::optional<std::string>> ChangedTexts(const TableRecord& now, Shift shift,
                                                       int row) const;
  /// The cells of a row that have another colour.
  Colors ChangedColors(const TableRecord& now, Shift shift, int row) const;

  std::vector<CellRecord> cells_;  // row by row
  std::size_t columns_ = 1;
  bool is_list_ = false;
};

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_TABLE_RECORD_H_
