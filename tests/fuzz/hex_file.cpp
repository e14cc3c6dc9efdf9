// A fuzzing target: any hex file read, checked, listed, marked anyhow, and disassembled twice over.
//
// Input: the first byte says how the rest is meant: a file as it stands (even), or the fields of
// records that get their checksums here (odd). The second byte says how many of the bytes behind it
// are marks: category and length of a run of rows, for one try after the other.
#include <algorithm>
#include <string>
#include <string_view>

#include "formats/hex_records.h"
#include "fuzz/targets.h"
#include "panel/running_program.h"
#include "platform/number_text.h"

namespace quilla::fuzz {
namespace {

/// The records that bytes of any value make: a count and an address, then so many bytes.
std::string MakeRecords(std::string_view fields) {
  constexpr std::size_t kHead = 3;
  constexpr std::size_t kLongest = 40;
  std::string file;
  while (fields.size() > kHead) {
    const std::size_t count =
        std::min(static_cast<unsigned char>(fields[0]) % kLongest, fields.size() - kHead);
    std::string record = ":" + PaddedHexText(static_cast<int>(count), kByteDigits);
    for (std::size_t i = 1; i < kHead + count; ++i) {
      if (i == kHead) record += "00";
      record += PaddedHexText(static_cast<unsigned char>(fields[i]), kByteDigits);
    }
    if (count == 0) record += "00";
    const std::string checksum = Checksum(record);
    file += record + checksum.substr(checksum.size() - kByteDigits) + '\n';
    fields.remove_prefix(kHead + count);
  }
  return file + kEndRecord;
}

/// Marks run after run of rows, and presses Done.
void TryOnce(RunningProgram& program, Form& form, std::string_view marks) {
  if (!form.visible()) return;  // the first try has been good
  auto& table = dynamic_cast<Grid&>(*form.Find("DataTable"));
  for (int row = 1; marks.size() > 1 && row < table.Rows(); marks.remove_prefix(2)) {
    form.Find("DataType", static_cast<unsigned char>(marks[0]) % 3)->Choose();
    table.PressCell(row, 0);
    row = std::min(row + static_cast<unsigned char>(marks[1]) % 64, table.Rows() - 1);
    table.ReleaseAt(row++);
  }
  Control& done = *form.Find("DoneButton");
  if (!done.enabled()) return;
  done.Choose();
  program.Wait();
  const Session& session = program.session();
  Require(session.Table1.Rows() == session.StringTable.Rows());
  Require(session.LabelCombo.Count() == session.LabelEqtList.Count());
  Require(session.XXCombo.Count() == session.XXEqtList.Count());
}

}  // namespace

void HexFile(std::string_view input) {
  if (input.size() < 2) return;
  const std::size_t marked =
      std::min<std::size_t>(static_cast<unsigned char>(input[1]), input.size() - 2);
  const std::string_view marks = input.substr(2, marked);
  const std::string_view rest = input.substr(2 + marked);
  RunningProgram program;
  program.InDialog([&](Form& form) {
    TryOnce(program, form, marks.substr(0, marked / 2));
    TryOnce(program, form, marks.substr(marked / 2));
    form.Find("CancelButton")->Choose();
  });
  program.Choose(program.session().menu.DisassembleFile,
                 FileOf(input[0] % 2 == 0 ? std::string(rest) : MakeRecords(rest)));
}

}  // namespace quilla::fuzz
