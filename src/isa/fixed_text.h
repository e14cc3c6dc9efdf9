// A text of limited length that can be put together while the program is compiled and kept as
// constant data.

#ifndef QUILLA_ISA_FIXED_TEXT_H_
#define QUILLA_ISA_FIXED_TEXT_H_

#include <array>
#include <cstddef>
#include <string_view>

namespace quilla::isa {

template <std::size_t kCapacity>
class FixedText {
 public:
  // Throws std::out_of_range past the capacity, which in constant data does not compile.
  constexpr FixedText& Append(std::string_view text) {
    for (const char c : text) {
      chars_.at(size_++) = c;
    }
    return *this;
  }

  constexpr std::string_view view() const noexcept { return {chars_.data(), size_}; }

 private:
  std::array<char, kCapacity> chars_{};
  std::size_t size_ = 0;
};

}  // namespace quilla::isa

#endif  // QUILLA_ISA_FIXED_TEXT_H_
