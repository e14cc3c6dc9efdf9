// The default comment of a row, built from what stands in it.
#ifndef QUILLA_PROGRAM_DEFAULT_COMMENT_H_
#define QUILLA_PROGRAM_DEFAULT_COMMENT_H_

#include "program/session.h"

namespace quilla {

/// Writes the row's default comment: that of a data byte, or of the opcode with the row's operand
/// string in it. A row without an opcode keeps its comment. Fails with `kNotANumber` for an
/// opcode that is no number, with `kOutsideTable` for a row that is not there.
void ApplyDefaultComment(Session& session, int row);

}  // namespace quilla

#endif  // QUILLA_PROGRAM_DEFAULT_COMMENT_H_
