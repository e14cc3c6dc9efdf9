// The words of a script line, and the form in which script and transcript write a text.
#ifndef QUILLA_ROBOT_WORDS_H_
#define QUILLA_ROBOT_WORDS_H_

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quilla::robot {

/// A line of the script that is no command. It is no std::exception, so that no handler of the
/// program that waits for the next line can swallow it.
class NotACommand {
 public:
  explicit NotACommand(std::string reason) : reason_(std::move(reason)) {}
  const std::string& reason() const { return reason_; }

 private:
  std::string reason_;
};

/// What parts the words of a line.
inline constexpr std::string_view kBlanks = " \t";

/// The text in double quotes, with every character escaped that would not stand as itself.
std::string Quoted(std::string_view text);

/// The words of one command, taken one after the other.
class Words {
 public:
  explicit Words(std::vector<std::string> words) : words_(std::move(words)) {}

  bool AreLeft() const { return next_ < words_.size(); }
  /// The next word. Fails with NotACommand when none is left.
  std::string Take();
  /// The next word as a decimal number, the nearest int if it is beyond one. Fails with
  /// NotACommand when it is no number or none is left.
  int TakeNumber();
  /// Fails with NotACommand when words are left.
  void End() const;

 private:
  std::vector<std::string> words_;
  std::size_t next_ = 0;
};

/// The commands of a line: a bare ";" that is a word by itself stands between two. Fails with
/// NotACommand for a quoted word that is not closed, goes on behind its closing quote, or holds an
/// unknown escape.
std::deque<Words> CommandsOf(std::string_view line);

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_WORDS_H_
