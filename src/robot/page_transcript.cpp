#include "robot/page_transcript.h"

#include <string>
#include <string_view>

#include "platform/grid.h"
#include "robot/report.h"
#include "robot/words.h"

namespace quilla::robot {
namespace {

constexpr CellColor kShade{0xD0D0D0};

std::string CaptionOf(const Form& layout, std::string_view label) {
  const Control* const control = layout.Find(label);
  return control == nullptr ? std::string() : control->caption();
}

/// The shaded columns of a row, "-" for none.
std::string ShadedColumns(const Grid& table, int row) {
  std::string columns;
  for (int column = 0; column < table.Cols(); ++column) {
    if (table.BackColor(row, column) != kShade) continue;
    if (!columns.empty()) columns += ',';
    columns += std::to_string(column);
  }
  return columns.empty() ? "-" : columns;
}

}  // namespace

void PageTranscript::PrintForm(const Form& layout) {
  transcript_ << "page " << layout.name() << ' ' << Quoted(CaptionOf(layout, "NameLabel")) << ' '
              << Quoted(CaptionOf(layout, "CommentLabel")) << ' ' << CaptionOf(layout, "PageLabel")
              << ' ' << CaptionOf(layout, "TotalPagesLabel") << '\n';
  const auto* const table = dynamic_cast<const Grid*>(layout.Find("Table"));
  if (table == nullptr) return;
  for (int row = 0; row < table->Rows(); ++row) {
    if (!HoldsText(*table, row)) continue;
    transcript_ << "line " << row;
    PrintCells(transcript_, *table, row);
    transcript_ << " shade=" << ShadedColumns(*table, row) << '\n';
  }
}

}  // namespace quilla::robot
