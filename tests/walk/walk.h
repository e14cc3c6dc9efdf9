// A random walk through the program: a script that is made up while it is played, and rules that
// must hold after every line of it.
#ifndef QUILLA_WALK_WALK_H_
#define QUILLA_WALK_WALK_H_

#include <string>

namespace quilla::walk {

/// Plays the script of a seed in a folder of its own. Gives a report with the seed, the rule that
/// broke and the whole script; empty if all went well.
std::string FaultOfWalk(unsigned seed);

/// From now on a program that dies in the middle of a walk, or is interrupted because a walk does
/// not end, prints the seed and the script to standard error.
void TellScriptOnDeath();

}  // namespace quilla::walk

#endif  // QUILLA_WALK_WALK_H_
