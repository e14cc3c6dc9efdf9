// The mnemonic text of a row, as far as its operand goes.
#ifndef QUILLA_PROGRAM_MNEMONIC_H_
#define QUILLA_PROGRAM_MNEMONIC_H_

#include <string>
#include <string_view>

namespace quilla {

/// The mnemonic with `new_name` in place of its end, as long as `old_name` is. A mnemonic shorter
/// than the old name is replaced whole.
inline std::string WithOperand(std::string_view mnemonic, std::string_view old_name,
                               std::string_view new_name) {
  const auto front = mnemonic.size() > old_name.size() ? mnemonic.size() - old_name.size() : 0;
  return std::string(mnemonic.substr(0, front)).append(new_name);
}

}  // namespace quilla

#endif  // QUILLA_PROGRAM_MNEMONIC_H_
