// A random walk through the program: a script that is made up while it is played, and rules that
// must hold after every line of it.
#ifndef QUILLA_WALK_WALK_H_
#define QUILLA_WALK_WALK_H_

#include <functional>
#include <string>

#include "program/session.h"
#include "robot/model_hands.h"

namespace quilla::walk {

/// Plays the script of a seed in a folder of its own, with those hands. Gives a report with the
/// seed, the rule that broke and the whole script; empty if all went well. `broken`, asked after
/// each line, says what is wrong besides.
std::string FaultOfWalk(
    unsigned seed, const robot::HandsFactory& make_hands = robot::MakeModelHands,
    std::function<std::string()> broken = [] { return std::string(); });

/// From now on a program that dies in the middle of a walk, or is interrupted because a walk does
/// not end, prints the seed and the script to standard error.
void TellScriptOnDeath();

/// The rule that is broken in a session; empty if all hold.
std::string BrokenRule(const Session& session);

}  // namespace quilla::walk

#endif  // QUILLA_WALK_WALK_H_
