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
  AppendLine(text, {FileItem::Number(names.Count())});
  for (int i = 0; i < names.Count(); ++i) {
    AppendLine(text, {FileItem::Text(names[i]), FileItem::Text(equivalents[i])});
  }
}

}  // namespace

std::string ProjectText(const Session& session) {
  const Grid& table = session.Table1;
  std::string text;
  AppendLine(text, {FileItem::Text(kWarning)});
  AppendLine(text, {FileItem::Text(kFormatTag)});
  AppendLine(text, {FileItem::Number(table.Rows())});
  for (int row = 0; row < table.Rows(); ++row) {
    for (int column = 0; column < kProgramColumns; ++column) {
      const bool is_kept = column != kAddressColumn || session.IsOrigin(row);
      std::string_view cell;
      if (is_kept) cell = table.TextMatrix(row, column);
      AppendLine(text, {FileItem::Text(cell)});
    }
    AppendLine(text, {FileItem::Text(session.OperandOf(row))});
  }
  AppendLine(text, {FileItem::Text(kEndOfTable)});
  AppendStrings(text, session.LabelCombo, session.LabelEqtList);
  AppendStrings(text, session.XXCombo, session.XXEqtList);
  AppendLine(text, {FileItem::Text(kEndOfFile)});
  return text;
}

}  // namespace quilla
