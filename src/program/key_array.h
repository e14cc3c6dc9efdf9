// A control array of keys: push buttons with one name, told apart by their index.
#ifndef QUILLA_PROGRAM_KEY_ARRAY_H_
#define QUILLA_PROGRAM_KEY_ARRAY_H_

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/button.h"

namespace quilla {

class KeyArray {
 public:
  /// Makes `count` keys in `container`, their captions by index. `press` hears the index of a key
  /// that is clicked, `hover`, if there is one, that of the key under the pointer.
  KeyArray(Control* container, const std::string& name, int count,
           const std::function<std::string_view(int)>& caption,
           const std::function<void(int)>& press, const std::function<void(int)>& hover = nullptr);

  Button& operator[](int index) { return *keys_[static_cast<std::size_t>(index)]; }

 private:
  std::vector<std::unique_ptr<Button>> keys_;
};

}  // namespace quilla

#endif  // QUILLA_PROGRAM_KEY_ARRAY_H_
