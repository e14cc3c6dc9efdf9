#include "robot/answers.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "robot/words.h"

namespace quilla::robot {
namespace {

constexpr std::pair<std::string_view, BoxAnswer> kButtonNames[] = {{"ok", BoxAnswer::kOk},
                                                                   {"cancel", BoxAnswer::kCancel},
                                                                   {"yes", BoxAnswer::kYes},
                                                                   {"no", BoxAnswer::kNo}};

/// The buttons of a box; its answer is the last one where the script has none.
std::vector<BoxAnswer> ButtonsOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::kOk:
      return {BoxAnswer::kOk};
    case BoxButtons::kOkCancel:
      return {BoxAnswer::kOk, BoxAnswer::kCancel};
    case BoxButtons::kYesNo:
      return {BoxAnswer::kYes, BoxAnswer::kNo};
    case BoxButtons::kYesNoCancel:
      return {BoxAnswer::kYes, BoxAnswer::kNo, BoxAnswer::kCancel};
  }
  return {};
}

std::string_view NameOf(BoxAnswer button) {
  return std::find_if(std::begin(kButtonNames), std::end(kButtonNames),
                      [button](const auto& entry) { return entry.second == button; })
      ->first;
}

std::string_view NameOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::kCritical:
      return "critical";
    case BoxIcon::kInformation:
      return "information";
    case BoxIcon::kQuestion:
      return "question";
  }
  return {};
}

}  // namespace

std::optional<BoxAnswer> ButtonNamed(std::string_view name) {
  for (const auto& [candidate, button] : kButtonNames) {
    if (candidate == name) return button;
  }
  return std::nullopt;
}

BoxAnswer QueuedMessageBoxes::Show(BoxIcon icon, const std::string& text, BoxButtons buttons) {
  const BoxAnswer answer = NextAnswer(buttons);
  transcript_ << "box " << NameOf(icon) << ' ' << Quoted(text) << ' ';
  for (const BoxAnswer button : ButtonsOf(buttons)) transcript_ << NameOf(button);
  transcript_ << " -> " << NameOf(answer) << '\n';
  return answer;
}

BoxAnswer QueuedMessageBoxes::NextAnswer(BoxButtons buttons) {
  const std::vector<BoxAnswer> choice = ButtonsOf(buttons);
  if (choice.size() == 1 || answers_.empty()) return choice.back();
  const BoxAnswer answer = answers_.front();
  answers_.pop_front();
  return std::find(choice.begin(), choice.end(), answer) == choice.end() ? choice.back() : answer;
}

std::optional<std::string> QueuedFileDialogs::Choose(const FileDialogRequest& request) {
  std::optional<std::string> path;
  if (!paths_.empty()) {
    path = std::move(paths_.front());
    paths_.pop_front();
  }
  transcript_ << "dialog " << (request.kind == FileDialogKind::kOpen ? "open" : "save") << ' '
              << Quoted(request.title) << ' ' << Quoted(request.filter) << " -> "
              << (path ? Quoted(*path) : "cancel") << '\n';
  return path;
}

}  // namespace quilla::robot
