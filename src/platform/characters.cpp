#include "platform/characters.h"

#include <algorithm>
#include <cstdint>

namespace quilla {
namespace {

bool IsContinuation(char byte) { return (static_cast<std::uint8_t>(byte) & 0xC0U) == 0x80U; }

/// The number of bytes that a first byte announces; 1 for a byte that begins no character.
std::size_t AnnouncedLength(char first) {
  const auto byte = static_cast<std::uint8_t>(first);
  if (byte >= 0xC2 && byte <= 0xDF) return 2;
  if (byte >= 0xE0 && byte <= 0xEF) return 3;
  if (byte >= 0xF0 && byte <= 0xF4) return 4;
  return 1;
}

}  // namespace

std::size_t CharacterLength(std::string_view text) {
  if (text.empty()) return 0;
  const std::size_t length = AnnouncedLength(text.front());
  if (length > text.size()) return 1;
  const auto rest = text.substr(1, length - 1);
  return std::all_of(rest.begin(), rest.end(), IsContinuation) ? length : 1;
}

std::size_t PrefixLength(std::string_view text, int count) {
  std::size_t length = 0;
  for (int i = 0; i < count && length < text.size(); ++i) {
    length += CharacterLength(text.substr(length));
  }
  return length;
}

std::vector<std::string> SplitCharacters(std::string_view text) {
  std::vector<std::string> characters;
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    characters.emplace_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return characters;
}

}  // namespace quilla
