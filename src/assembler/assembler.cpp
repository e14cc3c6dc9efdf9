#include "assembler/assembler.h"

#include "formats/hex_file.h"
#include "formats/hex_records.h"
#include "platform/failure.h"
#include "platform/number_text.h"
#include "program/opcode_cell.h"

namespace quilla {
namespace {

constexpr int kOriginMark = 3;  // the column of TempTable that marks an origin
constexpr int kHexChannel = 6;

}  // namespace

Assembler::Assembler(Session& session, StateMachine& states, AddressAssignment& addresses,
                     StringLists& strings, RescueFile& rescue)
    : session_(session),
      states_(states),
      addresses_(addresses),
      strings_(strings),
      rescue_(rescue) {
  TempTable_.Hide();
  session_.menu.AssembleFile.Click = [this] { AssembleFile_Click(); };
}

void Assembler::AssembleFile_Click() {
  session_.SetTip("Checking data.");
  if (!HasData()) {
    session_.SetTip("Assembling aborted.");
    session_.ShowCritical("No data available for assembling.");
    return;
  }
  session_.SetTip("Assigning addresses . . .");
  addresses_.Assign_Address(true);
  if (session_.AddressError) return;
  strings_.UpdateLabels();
  strings_.DeleteUnusedLabels_Click();
  session_.SetTip("Checking data . . .");
  if (!StringsHaveEquivalents()) {
    session_.ShowCritical("One or more strings do not have an equivalent assigned.");
    session_.SetTip("Assembling aborted.");
    return;
  }
  Assemble();
  session_.SetTip("Data assembled successfully.");
  SaveHexRecords(session_, kHexChannel, FailedWrite::kClosesChannel,
                 [this] { session_.SetTip("Saving to file . . ."); });
  states_.ReturnToReady();
}

bool Assembler::HasData() const {
  for (int row = 1; row < session_.Table1.Rows(); ++row) {
    if (!session_.Table1.TextMatrix(row, kOpcodeColumn).empty()) return true;
  }
  return false;
}

bool Assembler::StringsHaveEquivalents() const {
  for (int i = 0; i < session_.LabelCombo.Count(); ++i) {
    const bool needed = DecimalValue(session_.LabelPlacedList[i]) != 0 ||
                        DecimalValue(session_.LabelUsedList[i]) != 0;
    if (needed && session_.LabelEqtList[i] == kUnknownAddress) return false;
  }
  return session_.XXEqtList.Find(kUnknownByte) < 0;
}

void Assembler::Assemble() {
  SplitOpcodes();
  session_.SetTip("Assembling data . . .");
  session_.HexList.Clear();
  CutRecords();
  AddChecksums();
  session_.HexList.Add(kEndRecord);
}

void Assembler::SplitOpcodes() {
  const Grid& table = session_.Table1;
  TempTable_.Clear();
  TempTable_.SetRows(table.Rows());
  for (int row = 0; row < table.Rows(); ++row) {
    if (session_.IsOrigin(row)) {
      TempTable_.SetTextMatrix(row, kOriginMark, kOrigin);
      TempTable_.SetTextMatrix(row, 0, table.TextMatrix(row, kAddressColumn));
      continue;
    }
    const std::string& cell = table.TextMatrix(row, kOpcodeColumn);
    for (int byte = 0; byte < ByteCount(cell); ++byte) {
      TempTable_.SetTextMatrix(row, byte, ByteAt(cell, byte));
    }
  }
}

void Assembler::CutRecords() {
  RecordWriter writer(session_.HexList, [this] { NeverEnd(); });
  const int last_row = TempTable_.Rows() - 1;
  bool in_block = false;
  for (int row = 0; row <= last_row; ++row) {
    if (TempTable_.TextMatrix(row, kOriginMark) == kOrigin) {
      if (in_block) writer.EndBlock();
      writer.BeginBlock(HexValue(TempTable_.TextMatrix(row, 0)));
      in_block = true;
      // An origin has a row behind it, its first.
      if (row == last_row) throw Failure(ErrorNumber::kOutsideTable);
    } else if (in_block && row != last_row && !TempTable_.TextMatrix(row, 0).empty()) {
      for (int byte = 0; byte < kMostBytes; ++byte) {
        const std::string& text = TempTable_.TextMatrix(row, byte);
        if (!text.empty()) writer.AddByte(text);
      }
    }
  }
  if (in_block) writer.EndBlock();
}

void Assembler::NeverEnd() {
  rescue_.Write();
  session_.outside.event_loop.NeverReturn();
}

void Assembler::AddChecksums() {
  TextList& records = session_.HexList;
  for (int i = 0; i < records.Count(); ++i) records.Set(i, records[i] + Checksum(records[i]));
}

}  // namespace quilla
