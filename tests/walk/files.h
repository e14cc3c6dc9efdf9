// The files that a script of the walk finds in its folder, or asks for in vain.
#ifndef QUILLA_WALK_FILES_H_
#define QUILLA_WALK_FILES_H_

#include <string>
#include <vector>

namespace quilla::walk {

/// The paths that scripts give to file dialogs.
const std::vector<std::string>& FileNames();

/// Writes those that are there from the start to the working directory.
void WriteFiles();

}  // namespace quilla::walk

#endif  // QUILLA_WALK_FILES_H_
