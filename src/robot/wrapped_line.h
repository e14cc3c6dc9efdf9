// A line of the transcript that goes on in the next one, set in, before it gets too long to read.
#ifndef QUILLA_ROBOT_WRAPPED_LINE_H_
#define QUILLA_ROBOT_WRAPPED_LINE_H_

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace quilla::robot {

class WrappedLine {
 public:
  /// Begins with `head`. A line to which nothing is added is not written.
  WrappedLine(std::ostream& transcript, std::string head)
      : transcript_(transcript), head_(std::move(head)) {}
  WrappedLine(const WrappedLine&) = delete;
  WrappedLine& operator=(const WrappedLine&) = delete;
  ~WrappedLine() { End(); }

  /// Adds a piece, a blank before it; a piece is never broken.
  void Add(std::string_view piece);
  /// Ends the line; the next piece begins another with the same head.
  void End();

 private:
  std::ostream& transcript_;
  std::string head_;
  std::size_t width_ = 0;  // of the line so far; 0 before the first piece
};

/// Lines with those that are short side by side, a bar between them in the place of a first word
/// that they share.
std::string Joined(const std::string& lines);

/// "3", or "3..7" for more than one.
std::string RangeText(int first, int last);

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_WRAPPED_LINE_H_
