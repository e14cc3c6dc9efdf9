#include "demo/show_me.h"

#include <QApplication>
#include <QFile>

namespace quilla::demo {

void ShowMe::Begin(const QString& name) {
  QFile file(":/demos/" + name + ".robot");
  if (!file.open(QIODevice::ReadOnly)) return;
  if (demonstration_ != nullptr) demonstration_->Stop();
  if (!MayBegin()) {
    outside_.ports().boxes.Show(
        BoxIcon::kInformation,
        "A demonstration begins with a new file. Finish what you are doing first.",
        BoxButtons::kOk);
    return;
  }
  if (!ClearTable()) return;
  CloseOtherWindows();
  demonstration_ =
      std::make_unique<Demonstration>(quilla_, outside_, QString::fromUtf8(file.readAll()));
  demonstration_->set_pace(pace_ms_);
  demonstration_->Begin();
}

bool ShowMe::MayBegin() {
  const bool waits = demonstration_ != nullptr && demonstration_->is_under_way();
  return !waits && QApplication::activeModalWidget() == nullptr &&
         quilla_.panel()->session().menu.NewFile.IsEnabled();
}

// They would stand before the table.
void ShowMe::CloseOtherWindows() {
  for (Form* form : quilla_.Forms()) {
    if (form == &quilla_.panel()->form() || !form->visible()) continue;
    outside_.gate().Enter([&] { outside_.event_loop().CloseByFrame(*form); });
  }
}

bool ShowMe::ClearTable() {
  Session& session = quilla_.panel()->session();
  outside_.gate().Enter([&session] { session.menu.NewFile.Choose(); });
  return !session.FileChanged && session.FileOrigin == FileOrigin::kNew;
}

}  // namespace quilla::demo
