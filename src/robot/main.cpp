// The robot as a program: a script on standard input, its transcript on standard output.
#include <iostream>

#include "robot/robot.h"

int main() { return quilla::robot::RunScript(std::cin, std::cout, std::cerr); }
