// The content of a project file: the whole table, the strings of its rows, the labels and the
// variables, as sequential text items.
#ifndef QUILLA_FORMATS_PROJECT_TEXT_H_
#define QUILLA_FORMATS_PROJECT_TEXT_H_

#include <string>

#include "program/session.h"

namespace quilla {

/// The tag of the format, the second item of every project file.
inline constexpr const char* kFormatTag = "8085";

/// What the file of this session holds. Only origins keep their addresses in it. Fails with
/// `kOverflow` where there are more labels or variables than the file can count, 32,767 each.
std::string ProjectText(const Session& session);

}  // namespace quilla

#endif  // QUILLA_FORMATS_PROJECT_TEXT_H_
