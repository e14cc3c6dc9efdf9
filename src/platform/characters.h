// Characters of a UTF-8 text. A byte that belongs to no character counts as one of its own.
#ifndef QUILLA_PLATFORM_CHARACTERS_H_
#define QUILLA_PLATFORM_CHARACTERS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quilla {

/// The length in bytes of the first character of `text`; 0 for an empty text.
std::size_t CharacterLength(std::string_view text);

/// The length in bytes of the first `count` characters of `text`, or of all if it has fewer.
std::size_t PrefixLength(std::string_view text, int count);

/// The characters of `text`, in order.
std::vector<std::string> SplitCharacters(std::string_view text);

}  // namespace quilla

#endif  // QUILLA_PLATFORM_CHARACTERS_H_
