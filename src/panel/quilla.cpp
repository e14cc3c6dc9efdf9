#include "panel/quilla.h"

namespace quilla {

Quilla::Quilla(Outside& outside) : outside_(outside) {
  OpenTimer_.Fire = [this] { OpenTimer_Timer(); };
}

void Quilla::Start() {
  OpenTimer_.Enable();
  outside_.event_loop.Show(OpenForm_);
}

void Quilla::MakePanel() {
  if (panel_ == nullptr) panel_ = std::make_unique<ProgrammingPanel>(outside_);
}

void Quilla::OpenTimer_Timer() {
  MakePanel();
  outside_.event_loop.Show(panel_->form());
  outside_.event_loop.Unload(OpenForm_);
}

std::vector<Form*> Quilla::Forms() {
  std::vector<Form*> forms{&OpenForm_};
  if (panel_) {
    forms.push_back(&panel_->form());
    for (Form* dialog : panel_->Dialogs()) forms.push_back(dialog);
  }
  return forms;
}

}  // namespace quilla
