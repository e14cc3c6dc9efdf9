#include "robot/wrapped_line.h"

#include <sstream>

namespace quilla::robot {
namespace {

constexpr std::size_t kWidth = 100;
constexpr std::string_view kIndent = "   ";
constexpr std::string_view kBar = " | ";

}  // namespace

void WrappedLine::End() {
  if (width_ > 0) transcript_ << '\n';
  width_ = 0;
}

void WrappedLine::Add(std::string_view piece) {
  if (width_ == 0) {
    transcript_ << head_;
    width_ = head_.size();
  } else if (width_ + 1 + piece.size() > kWidth) {
    transcript_ << '\n' << kIndent;
    width_ = kIndent.size();
  }
  transcript_ << ' ' << piece;
  width_ += 1 + piece.size();
}

std::string Joined(const std::string& lines) {
  std::string joined;
  std::string head;            // the first word of the last line
  std::size_t width = kWidth;  // of the last line
  std::istringstream stream(lines);
  for (std::string line; std::getline(stream, line);) {
    const bool goes_on = line.starts_with(kIndent);
    const std::string word = line.substr(0, line.find(' ') + 1);
    const std::string rest = line.substr(!goes_on && word == head ? word.size() : 0);
    if (!goes_on && width + kBar.size() + rest.size() <= kWidth) {
      joined.replace(joined.size() - 1, 1, kBar);
      joined += rest;
      width += kBar.size() + rest.size();
    } else {
      joined += line;
      width = line.size();
    }
    joined += '\n';
    if (!goes_on) head = word;
  }
  return joined;
}

std::string RangeText(int first, int last) {
  const std::string text = std::to_string(first);
  return first == last ? text : text + ".." + std::to_string(last);
}

}  // namespace quilla::robot
