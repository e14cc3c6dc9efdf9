// Message boxes and file dialogs that are answered from queues and written to the transcript.
#ifndef QUILLA_ROBOT_ANSWERS_H_
#define QUILLA_ROBOT_ANSWERS_H_

#include <deque>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "platform/dialogs.h"

namespace quilla::robot {

/// The button of that name: "ok", "cancel", "yes" or "no"; nothing for another name.
std::optional<BoxAnswer> ButtonNamed(std::string_view name);

class QueuedMessageBoxes : public MessageBoxes {
 public:
  explicit QueuedMessageBoxes(std::ostream& transcript) : transcript_(transcript) {}

  /// Queues an answer for the next box that has a choice.
  void Queue(BoxAnswer answer) { answers_.push_back(answer); }

  /// A box with a choice takes the next answer of the queue. One that it has no button for is
  /// lost, and counts as none: the answer is then Cancel, or No where there is no Cancel.
  BoxAnswer Show(BoxIcon icon, const std::string& text, BoxButtons buttons) override;

 private:
  BoxAnswer NextAnswer(BoxButtons buttons);

  std::ostream& transcript_;
  std::deque<BoxAnswer> answers_;
};

class QueuedFileDialogs : public FileDialogs {
 public:
  explicit QueuedFileDialogs(std::ostream& transcript) : transcript_(transcript) {}

  /// Queues the path that the next dialog gives, or nothing for a cancel.
  void Queue(std::optional<std::string> path) { paths_.push_back(std::move(path)); }

  /// Gives the next path of the queue; a dialog that finds none is cancelled.
  std::optional<std::string> Choose(const FileDialogRequest& request) override;

 private:
  std::ostream& transcript_;
  std::deque<std::optional<std::string>> paths_;
};

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_ANSWERS_H_
