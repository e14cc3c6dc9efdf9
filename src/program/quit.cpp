#include "program/quit.h"

namespace quilla {

QuitCommand::QuitCommand(Session& session) : session_(session) {
  session_.menu.QuitFile.Click = [this] { Form_QueryUnload(); };
  session_.ProgrammingPanel.QueryUnload = [this] { return Form_QueryUnload(); };
}

bool QuitCommand::Form_QueryUnload() {
  const BoxAnswer answer = session_.Ask(
      BoxIcon::kQuestion, "Are you sure you want to quit? You will lose unsaved information.",
      BoxButtons::kOkCancel);
  if (answer != BoxAnswer::kOk) return false;
  session_.ClosePort();
  session_.outside.event_loop.End();
  return true;
}

}  // namespace quilla
