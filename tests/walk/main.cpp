// The random walk as a program: plays many scripts, and prints the first that breaks a rule.
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>

#include "walk/walk.h"

namespace {

constexpr unsigned kScriptsPerMark = 100;

int Usage() {
  std::cerr << "usage: quilla-walk COUNT [SEED]\n"
               "Plays COUNT made-up scripts, of the seeds SEED, SEED + 1 and on (1 if none is "
               "given).\n";
  return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  unsigned count = 0;
  unsigned seed = 1;
  try {
    if (argc < 2 || argc > 3) return Usage();
    count = static_cast<unsigned>(std::stoul(argv[1]));
    if (argc == 3) seed = static_cast<unsigned>(std::stoul(argv[2]));
  } catch (const std::exception&) {
    return Usage();
  }
  quilla::walk::TellScriptOnDeath();
  for (unsigned played = 0; played < count; ++played) {
    const std::string fault = quilla::walk::FaultOfWalk(seed + played);
    if (!fault.empty()) {
      std::cerr << '\n' << fault;
      return EXIT_FAILURE;
    }
    if ((played + 1) % kScriptsPerMark == 0) std::cout << '.' << std::flush;
  }
  std::cout << '\n' << count << " scripts from seed " << seed << ": all rules held\n";
  return EXIT_SUCCESS;
}
