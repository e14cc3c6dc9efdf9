// The assembler: the Opcode column becomes Intel HEX records, with addresses, checks and
// checksums, and the records become a file.
#ifndef QUILLA_ASSEMBLER_ASSEMBLER_H_
#define QUILLA_ASSEMBLER_ASSEMBLER_H_

#include "formats/rescue_file.h"
#include "platform/grid.h"
#include "program/session.h"
#include "program/state_machine.h"
#include "symbols/address_assignment.h"
#include "symbols/string_lists.h"

namespace quilla {

class Assembler {
 public:
  Assembler(Session& session, StateMachine& states, AddressAssignment& addresses,
            StringLists& strings, RescueFile& rescue);

  /// The menu command, all stages from the first check to the saved file. A block that reaches the
  /// addresses 0100 to 0FFF never gets its records: the command does not come back.
  void AssembleFile_Click();

  /// The stages between the checks and the file: they fill HexList from Table1.
  void Assemble();

 private:
  static constexpr int kMostBytes = 3;  // of an instruction; one column of TempTable for each

  bool HasData() const;
  bool StringsHaveEquivalents() const;
  void SplitOpcodes();
  void CutRecords();
  /// Waits for ever, with no work to lose.
  void NeverEnd();
  void AddChecksums();

  Session& session_;
  StateMachine& states_;
  AddressAssignment& addresses_;
  StringLists& strings_;
  RescueFile& rescue_;
  /// The byte texts of each row in columns 0 to 2; of an origin row its address in column 0 and
  /// "Origin" in column 3.
  Grid TempTable_{&session_.ProgrammingPanel, "TempTable", kMostBytes + 1};
};

}  // namespace quilla

#endif  // QUILLA_ASSEMBLER_ASSEMBLER_H_
