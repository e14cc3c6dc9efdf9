#include "robot/wrapped_line.h"

namespace quilla::robot {
namespace {

constexpr std::size_t kWidth = 100;
constexpr std::string_view kIndent = "   ";

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

std::string RangeText(int first, int last) {
  const std::string text = std::to_string(first);
  return first == last ? text : text + ".." + std::to_string(last);
}

}  // namespace quilla::robot
