// The stages that turn a layout into the program of the session: the rows, then the mnemonics with
// names made up for their operands, then the labels in their places.
#ifndef QUILLA_DISASSEMBLER_STAGES_H_
#define QUILLA_DISASSEMBLER_STAGES_H_

#include "disassembler/program_layout.h"
#include "program/rows.h"
#include "program/session.h"
#include "symbols/origins.h"

namespace quilla {

/// Empties the program and its strings and writes the Opcode cells up to `LastLine` and the origin
/// rows; the cursor stays inside the table. Fails with `kOutsideList` where `LastLine` lies outside
/// the stores, with `kNotANumber` or `kOutsideTable` where the row of an origin is no number or
/// lies outside the new table.
void CopyOpcodes(const ProgramLayout& layout, Session& session, Rows& rows, Origins& origins);

/// Writes the mnemonic and the operand string of every row with an Opcode cell. Each operand of one
/// byte becomes a variable of its own, each of two a label, one for equal addresses.
void NameOperands(const ProgramLayout& layout, Session& session);

/// Writes every label into the first row with its address. One whose address is that of no row
/// stays in the lists alone.
void PlaceLabels(Session& session);

}  // namespace quilla

#endif  // QUILLA_DISASSEMBLER_STAGES_H_
