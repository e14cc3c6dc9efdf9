// The assembler: the Opcode column becomes Intel HEX records, with addresses, checks and
// checksums, and the records become a file.
#ifndef QUILLA_ASSEMBLER_ASSEMBLER_H_
#define QUILLA_ASSEMBLER_ASSEMBLER_H_

#include "platform/grid.h"
#include "program/session.h"
#include "program/state_machine.h"
#include "symbols/address_assignment.h"
#include "symbols/string_lists.h"

namespace quilla {

class Assembler {
 public:
  Assembler(Session& session, StateMachine& states, AddressAssignment& addresses,
            StringLists& strings);

  /// The menu command, all stages from the first check to the saved file.
  void AssembleFile_Click();

  /// The stages between the checks and the file: they fill HexList from Table1.
  void Assemble();

 private:
  static constexpr int kMostBytes = 3;  // of an instruction; one column of TempTable for each

  bool HasData() const;
  bool StringsHaveEquivalents() const;
  void SplitOpcodes();
  void CutRecords();
  void AddChecksums();

  Session& session_;
  StateMachine& states_;
  AddressAssignment& addresses_;
  StringLists& strings_;
  /// The byte texts of each row in columns 0 to 2; of an origin row its address in column 0 and
  /// "Origin" in column 3.
  Grid TempTable_{&session_.ProgrammingPanel, "TempTable", kMostBytes + 1};
};

}  // namespace quilla

#endif  // QUILLA_ASSEMBLER_ASSEMBLER_H_
