// The robot as a program: a script on standard input, its transcript on standard output.
#include <iostream>

#include "robot/robot.h"
#include "system/end_requests.h"

int main() {
  quilla::LetLongFilesFail();
  quilla::EndRequests requests(quilla::EndRequests::Input::kEnds);
  const int result =
      quilla::robot::RunScript(std::cin, std::cout, std::cerr, [&] { return requests.has_come(); });
  std::cout.flush();
  requests.Obey();
  return result;
}
