#include "robot/table_record.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "platform/number_text.h"
#include "robot/report.h"
#include "robot/words.h"
#include "robot/wrapped_line.h"

namespace quilla::robot {
namespace {

using Texts = std::vector<std::optional<std::string>>;

/// The next hexadecimal number of the same width, two digits at least; nothing for a text that is
/// none.
std::optional<std::string> NextNumber(std::string text) {
  if (text.size() < 2) return std::nullopt;
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit) {
    const std::size_t value = kDigits.find(*digit);
    if (value == std::string_view::npos) return std::nullopt;
    *digit = kDigits[(value + 1) % kDigits.size()];
    if (value + 1 == kDigits.size()) continue;
    const bool is_number = text.find_first_not_of(kDigits) == std::string::npos;
    return is_number ? std::optional(text) : std::nullopt;
  }
  return std::nullopt;
}

/// Rows one under the other whose changed cells are equal or count up from row to row.
struct Run {
  int first = 0;
  int last = 0;
  Texts from;
  Texts to;

  bool GoesOn(int row, const Texts& texts) const {
    if (row != last + 1 || texts.size() != to.size()) return false;
    for (std::size_t column = 0; column < texts.size(); ++column) {
      if (texts[column].has_value() != to[column].has_value()) return false;
      if (!texts[column]) continue;
      const bool equal = *texts[column] == *to[column];
      const bool counts = !equal && texts[column] == NextNumber(*to[column]);
      const bool may_count = first == last || from[column] != to[column];
      const bool may_equal = first == last || from[column] == to[column];
      if (!(equal && may_equal) && !(counts && may_count)) return false;
    }
    return true;
  }

  std::string TextAt(std::size_t column) const {
    if (!to[column]) return "-";
    if (*to[column] == TableRecord::kDefault) return TableRecord::kDefault + 1;
    const std::string text = Quoted(*from[column]);
    return from[column] == to[column] ? text : text + ".." + Quoted(*to[column]);
  }
};

std::string NameOf(CellColor back, CellColor fore) {
  if (back == fore && !back.is_painted()) return back == kNormalColor ? "own" : "cursor";
  const bool is_back_alone = back.is_painted() && fore == kNormalColor;
  return is_back_alone ? ColorText(back) : ColorText(back) + "/" + ColorText(fore);
}

}  // namespace

TableRecord::TableRecord(const Grid& grid) : columns_(static_cast<std::size_t>(grid.Cols())) {
  cells_.reserve(static_cast<std::size_t>(grid.Rows()) * columns_);
  for (int row = 0; row < grid.Rows(); ++row) {
    for (int column = 0; column < grid.Cols(); ++column) {
      cells_.push_back(
          {grid.TextMatrix(row, column), grid.BackColor(row, column), grid.ForeColor(row, column)});
    }
  }
}

TableRecord::TableRecord(const TextList& list) : is_list_(true) {
  for (const std::string& item : list.items()) cells_.push_back({item, {}, {}});
}

TableRecord TableRecord::SideBySide(const std::vector<TableRecord>& lists) {
  TableRecord table;
  table.columns_ = lists.size();
  table.is_list_ = true;
  for (int row = 0; row < lists.front().Rows(); ++row) {
    for (const TableRecord& list : lists) table.cells_.push_back(*list.CellsOf(row));
  }
  return table;
}

bool TableRecord::Matches(const Grid& grid) const {
  if (grid.Rows() != Rows()) return false;
  auto cell = cells_.begin();
  for (int row = 0; row < grid.Rows(); ++row) {
    for (int column = 0; column < grid.Cols(); ++column, ++cell) {
      if (cell->text != grid.TextMatrix(row, column) || cell->back != grid.BackColor(row, column) ||
          cell->fore != grid.ForeColor(row, column)) {
        return false;
      }
    }
  }
  return true;
}

bool TableRecord::Matches(const TextList& list) const {
  return std::equal(
      cells_.begin(), cells_.end(), list.items().begin(), list.items().end(),
      [](const CellRecord& cell, const std::string& item) { return cell.text == item; });
}

const TableRecord::CellRecord* TableRecord::Before(Shift shift, int row) const {
  if (shift.IsNew(row)) return nullptr;
  return CellsOf(row < shift.at ? row : row - shift.more);
}

int TableRecord::ChangedRows(const TableRecord& now, Shift shift) const {
  int changed = 0;
  for (int row = 0; row < now.Rows(); ++row) {
    const CellRecord* const before = Before(shift, row);
    const CellRecord* const cells = now.CellsOf(row);
    if (before == nullptr || !std::equal(cells, cells + columns_, before)) ++changed;
  }
  return changed;
}

TableRecord::Shift TableRecord::ShiftTo(const TableRecord& now) const {
  const int more = now.Rows() - Rows();
  if (more == 0) return {};
  // Rows came or went behind the last row that is equal from the start, or before the first one
  // that is equal to the end: whichever leaves less to tell.
  const int fewer = std::min(Rows(), now.Rows());
  const std::size_t front = static_cast<std::size_t>(
      std::mismatch(cells_.begin(), cells_.end(), now.cells_.begin(), now.cells_.end()).first -
      cells_.begin());
  const std::size_t back = static_cast<std::size_t>(
      std::mismatch(cells_.rbegin(), cells_.rend(), now.cells_.rbegin(), now.cells_.rend()).first -
      cells_.rbegin());
  const Shift early{static_cast<int>(front / now.columns_), more};
  const Shift late{fewer - static_cast<int>(back / now.columns_), more};
  return ChangedRows(now, late) < ChangedRows(now, early) ? late : early;
}

Texts TableRecord::ChangedTexts(const TableRecord& now, Shift shift, int row) const {
  Texts texts;
  const CellRecord* const before = Before(shift, row);
  const CellRecord* const cells = now.CellsOf(row);
  for (std::size_t column = 0; column < now.columns_; ++column) {
    // A new row of a table is empty unless its texts are told; a new entry is told in any case.
    const bool same = before == nullptr ? cells[column].text.empty() && !now.is_list_
                                        : cells[column].text == before[column].text;
    if (same) continue;
    texts.resize(column);
    texts.emplace_back(cells[column].text);
  }
  return texts;
}

void TableRecord::PrintTexts(std::ostream& transcript, const std::string& name,
                             const TableRecord& now) const {
  const Shift shift = ShiftTo(now);
  std::vector<Run> runs;
  for (int row = 0; row < now.Rows(); ++row) {
    Texts texts = ChangedTexts(now, shift, row);
    if (texts.empty()) continue;
    if (!runs.empty() && runs.back().GoesOn(row, texts)) {
      runs.back().last = row;
      runs.back().to = std::move(texts);
    } else {
      runs.push_back({row, row, texts, texts});
    }
  }
  WrappedLine line(transcript, name);
  // New entries at the end of a list tell by themselves how many there are.
  const bool is_longer = now.is_list_ && shift.more > 0 && shift.at == Rows();
  if (shift.more != 0 && !is_longer) {
    const int count = std::abs(shift.more);
    const bool at_end = shift.at == std::min(Rows(), now.Rows());
    line.Add((now.is_list_ ? "count=" : "rows=") + std::to_string(now.Rows()) +
             (at_end ? ""
                     : " (" + std::to_string(count) + (shift.more > 0 ? " in" : " out") + " at " +
                           std::to_string(shift.at) + ")"));
  }
  if (now.columns_ == 1) {
    for (const Run& run : runs) line.Add(RangeText(run.first, run.last) + "=" + run.TextAt(0));
    return;
  }
  line.End();
  for (const Run& run : runs) {
    WrappedLine cells(transcript, name + " " + RangeText(run.first, run.last));
    for (std::size_t column = 0; column < run.to.size(); ++column) cells.Add(run.TextAt(column));
  }
}

TableRecord::Colors TableRecord::ChangedColors(const TableRecord& now, Shift shift, int row) const {
  static const CellRecord kNone;
  Colors colors;
  const CellRecord* const before = Before(shift, row);
  for (int column = 0; column < static_cast<int>(now.columns_); ++column) {
    const CellRecord& cell = now.CellsOf(row)[column];
    const CellRecord& old = before == nullptr ? kNone : before[column];
    if (cell.back == old.back && cell.fore == old.fore) continue;
    const std::string name = NameOf(cell.back, cell.fore);
    if (!colors.empty() && colors.back().last == column - 1 && colors.back().name == name) {
      colors.back().last = column;
    } else {
      colors.push_back({column, column, name});
    }
  }
  return colors;
}

void TableRecord::PrintColors(std::ostream& transcript, const std::string& name,
                              const TableRecord& now) const {
  const Shift shift = ShiftTo(now);
  WrappedLine line(transcript, name);
  int first = 0;
  for (int row = 0; row < now.Rows(); ++row) {
    const Colors colors = ChangedColors(now, shift, row);
    if (row + 1 < now.Rows() && colors == ChangedColors(now, shift, row + 1)) continue;
    for (const ColumnColor& color : colors) {
      line.Add(RangeText(first, row) + "," + RangeText(color.first, color.last) + "=" + color.name);
    }
    first = row + 1;
  }
}

}  // namespace quilla::robot
