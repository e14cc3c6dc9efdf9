// The layouts of printed pages: forms that no window shows, filled page by page and handed to the
// printer.
#ifndef QUILLA_PRINT_PAGE_LAYOUTS_H_
#define QUILLA_PRINT_PAGE_LAYOUTS_H_

#include <array>
#include <cstddef>
#include <string>

#include "platform/button.h"
#include "platform/form.h"
#include "platform/grid.h"
#include "print/print_state.h"
#include "program/session.h"

namespace quilla {

/// What stands above the table of either page. `HeadLabel`, indexed by column, heads the columns
/// of a `Table`.
struct PageLayout {
  explicit PageLayout(const char* name) : form(name) {}

  Form form;
  Label HeadingLabel{&form, "HeadingLabel", "BRELVANOR COMPUTERS PVT LTD"};
  Label NameLabel{&form, "NameLabel"};
  Label CommentLabel{&form, "CommentLabel"};
  Label PageCaption{&form, "PageCaption", "Page:"};
  Label PageLabel{&form, "PageLabel"};
  Label OfCaption{&form, "OfCaption", "of"};
  Label TotalPagesLabel{&form, "TotalPagesLabel"};

 protected:
  /// Writes the file's name, the comment and the page numbers.
  void WriteHead(const Session& session, const PrintState& state);
};

/// A page of the listing.
struct PrintPanel : PageLayout {
  PrintPanel();

  /// Composes the page that begins with row `PrintCursor`. Gives the number of its rows.
  int Fill(const Session& session, const PrintState& state);

  std::array<Label, kProgramColumns> HeadLabel{
      Label(&form, "HeadLabel", "Label", 0), Label(&form, "HeadLabel", "Addr", 1),
      Label(&form, "HeadLabel", "Mnemonics", 2), Label(&form, "HeadLabel", "Opcode", 3),
      Label(&form, "HeadLabel", "Comments", 4)};
  Grid Table{&form, "Table", kProgramColumns};

 private:
  void CopyRow(const Session& session, int from, int to);
};

/// A page of strings and their equivalents: four pairs of columns with gaps between them.
struct PrintLabelPanel : PageLayout {
  PrintLabelPanel();

  /// Composes the page that begins with string `PrintCursor`. Gives the number of its strings.
  int Fill(const Session& session, const PrintState& state);

  std::array<Label, std::size_t{2} * kPairsOfRow> HeadLabel{
      Label(&form, "HeadLabel", "String", 0), Label(&form, "HeadLabel", "Equivalent", 1),
      Label(&form, "HeadLabel", "String", 3), Label(&form, "HeadLabel", "Equivalent", 4),
      Label(&form, "HeadLabel", "String", 6), Label(&form, "HeadLabel", "Equivalent", 7),
      Label(&form, "HeadLabel", "String", 9), Label(&form, "HeadLabel", "Equivalent", 10)};
  Grid Table{&form, "Table", 3 * kPairsOfRow - 1};
};

}  // namespace quilla

#endif  // QUILLA_PRINT_PAGE_LAYOUTS_H_
