#include "robot/words.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <limits>
#include <system_error>
#include <utility>

#include "platform/number_text.h"

namespace quilla::robot {
namespace {

constexpr std::string_view kCommandMark = ";";
constexpr char kQuote = '"';
constexpr char kEscape = '\\';
constexpr std::uint8_t kFirstPrintable = 0x20;
constexpr std::uint8_t kFirstBeyondAscii = 0x80;
constexpr int kHexadecimal = 16;

// The letter of an escape, and the character that it stands for.
constexpr std::pair<char, char> kLetters[] = {
    {'"', '"'}, {'\\', '\\'}, {'r', '\r'}, {'n', '\n'}, {'t', '\t'}};

/// Reads words off the front of a line.
class WordReader {
 public:
  explicit WordReader(std::string_view line) : rest_(line) { SkipBlanks(); }

  bool AtEnd() const { return rest_.empty(); }
  bool AtQuote() const { return rest_.front() == kQuote; }

  std::string Next() {
    std::string word = AtQuote() ? QuotedWord() : PlainWord();
    SkipBlanks();
    return word;
  }

 private:
  void SkipBlanks() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
  }

  char TakeCharacter() {
    if (rest_.empty()) throw NotACommand("a quote is not closed");
    const char character = rest_.front();
    rest_.remove_prefix(1);
    return character;
  }

  std::string PlainWord() {
    const std::size_t length = std::min(rest_.find_first_of(kBlanks), rest_.size());
    std::string word(rest_.substr(0, length));
    rest_.remove_prefix(length);
    return word;
  }

  std::string QuotedWord() {
    std::string word;
    TakeCharacter();
    for (char c = TakeCharacter(); c != kQuote; c = TakeCharacter()) {
      word += c == kEscape ? EscapedCharacter() : c;
    }
    if (!rest_.empty() && kBlanks.find(rest_.front()) == std::string_view::npos) {
      throw NotACommand("no blank behind a closing quote");
    }
    return word;
  }

  char EscapedCharacter() {
    const char letter = TakeCharacter();
    for (const auto& [name, character] : kLetters) {
      if (letter == name) return character;
    }
    if (letter != 'x') throw NotACommand(std::string("unknown escape \\") + letter);
    const int high = DigitValue(TakeCharacter());
    const int low = DigitValue(TakeCharacter());
    if (high < 0 || low < 0) throw NotACommand("\\x needs two hexadecimal digits");
    return static_cast<char>(high * kHexadecimal + low);
  }

  std::string_view rest_;
};

}  // namespace

std::string Quoted(std::string_view text) {
  std::string quoted(1, kQuote);
  for (const char c : text) {
    const auto* const letter =
        std::find_if(std::begin(kLetters), std::end(kLetters),
                     [c](const auto& candidate) { return candidate.second == c; });
    const auto byte = static_cast<std::uint8_t>(c);
    if (letter != std::end(kLetters)) {
      quoted += {kEscape, letter->first};
    } else if (byte < kFirstPrintable || byte >= kFirstBeyondAscii) {
      quoted += "\\x" + PaddedHexText(byte, kByteDigits);
    } else {
      quoted += c;
    }
  }
  return quoted + kQuote;
}

std::deque<Words> CommandsOf(std::string_view line) {
  std::deque<Words> commands;
  std::vector<std::string> words;
  for (WordReader reader(line); !reader.AtEnd();) {
    const bool is_quoted = reader.AtQuote();
    std::string word = reader.Next();
    if (word == kCommandMark && !is_quoted) {
      commands.emplace_back(std::exchange(words, {}));
    } else {
      words.push_back(std::move(word));
    }
  }
  commands.emplace_back(std::move(words));
  return commands;
}

std::string Words::Take() {
  if (!AreLeft()) throw NotACommand("a word is missing");
  return words_[next_++];
}

int Words::TakeNumber() {
  const std::string word = Take();
  int number = 0;
  const char* const end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, number);
  if (stop != end || error == std::errc::invalid_argument) {
    throw NotACommand(Quoted(word) + " is no number");
  }
  if (error == std::errc::result_out_of_range) {
    using Limits = std::numeric_limits<int>;
    return word.front() == '-' ? Limits::min() : Limits::max();
  }
  return number;
}

void Words::End() const {
  if (AreLeft()) throw NotACommand("a word too many: " + Quoted(words_[next_]));
}

}  // namespace quilla::robot
