// An instruction as people write it, taken apart into the keys that enter it.
#ifndef QUILLA_ROBOT_ROW_TEXT_H_
#define QUILLA_ROBOT_ROW_TEXT_H_

#include <string>
#include <string_view>
#include <vector>

namespace quilla::robot {

/// What a user enters for an instruction, in this order.
struct RowKeys {
  int instruction = 0;         // the index of its key
  std::vector<int> registers;  // the indexes of their keys
  std::vector<int> digits;     // the number of a restart
  std::string label;           // a 16-bit operand; empty for none
  std::string variable;        // an 8-bit operand; empty for none
};

/// Takes an instruction such as "MVI A,count" apart. Blanks around the operands do not matter.
/// Fails with NotACommand for a text that is no instruction; how a name is spelled, or whether it
/// may be used, is for the program to say.
RowKeys KeysOf(std::string_view text);

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_ROW_TEXT_H_
