#include "formats/project_text.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

#include "platform/failure.h"
#include "platform/file_channels.h"

namespace quilla {
namespace {

constexpr const char* kWarning =
    "Warning: If the contents of this file are altered, the editor assembler might not read the "
    "file properly.";
constexpr const char* kEndOfTable = "EOT";
constexpr const char* kEndOfFile = "EOF";

void AppendStrings(std::string& text, const TextList& names, const TextList& equivalents) {
  if (names.Count() > std::numeric_limits<std::int16_t>::max()) {
    throw Failure(ErrorNumber::kOverflow);
  }
  AppendNumber(text, names.Count());
  for (int i = 0; i < names.Count(); ++i) {
    AppendText(text, names[i], kNextItem);
    AppendText(text, equivalents[i]);
  }
}

}  // namespace

std::string ProjectText(const Session& session) {
  const Grid& table = session.Table1;
  std::string text;
  AppendText(text, kWarning);
  AppendText(text, kFormatTag);
  AppendNumber(text, table.Rows());
  for (int row = 0; row < table.Rows(); ++row) {
    for (int column = 0; column < kProgramColumns; ++column) {
      const bool is_kept = column != kAddressColumn || session.IsOrigin(row);
      std::string_view cell;
      if (is_kept) cell = table.TextMatrix(row, column);
      AppendText(text, cell);
    }
    AppendText(text, session.OperandOf(row));
  }
  AppendText(text, kEndOfTable);
  AppendStrings(text, session.LabelCombo, session.LabelEqtList);
  AppendStrings(text, session.XXCombo, session.XXEqtList);
  AppendText(text, kEndOfFile);
  return text;
}

}  // namespace quilla
