#include "window/help.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>
#include <QToolButton>
#include <map>
#include <string_view>

namespace quilla {

QString SectionOf(const Form& form, PanelState state) {
  static const std::map<std::string_view, const char*> kOfWindow = {
      {kRenumberDialog, "equivalents"},
      {kDataDialog, "back-from-hex-to-a-program"},
      {kPrintInfo, "on-paper"},
      {kWatchWindowDialog, "the-simulator"}};
  static const std::map<PanelState, const char*> kOfState = {
      {PanelState::kReady, ""},
      {PanelState::kPlaceLabel, "labels-and-variables"},
      {PanelState::kPlaceOnRow, "labels-and-variables"},
      {PanelState::kDeleteLabels, "labels-and-variables"},
      {PanelState::kLabelOperand, "labels-and-variables"},
      {PanelState::kLxiOperand, "labels-and-variables"},
      {PanelState::kByteOperand, "labels-and-variables"},
      {PanelState::kMviOperand, "labels-and-variables"},
      {PanelState::kComment, "comments"},
      {PanelState::kCommentRow, "comments"},
      {PanelState::kFindLabel, "find-and-replace"},
      {PanelState::kFindVariable, "find-and-replace"},
      {PanelState::kReplaceLabel, "find-and-replace"},
      {PanelState::kReplacePicked, "find-and-replace"},
      {PanelState::kReplaceVariable, "find-and-replace"},
      {PanelState::kVariablePicked, "find-and-replace"},
      {PanelState::kChangeOrigin, "origins-and-addresses"},
      {PanelState::kNewOrigin, "origins-and-addresses"},
      {PanelState::kDataReady, "data-bytes"},
      {PanelState::kPrintComment, "on-paper"}};
  const auto window = kOfWindow.find(form.name());
  if (window != kOfWindow.end()) return window->second;
  const auto task = kOfState.find(state);
  return task == kOfState.end() ? "entering-instructions" : task->second;
}

void Help::AddTo(Form& form, QWidget& window) {
  const auto open = [this, &form, &window] { Open(form, window); };
  connect(new QShortcut(QKeySequence::HelpContents, &window), &QShortcut::activated, this, open);
  auto* const panel = qobject_cast<QMainWindow*>(&window);
  if (panel == nullptr) return;
  auto* const button = new QToolButton(panel->menuBar());
  button->setObjectName("HelpButton");
  button->setText("?");
  button->setToolTip(tr("Guide (F1)"));
  button->setAccessibleName(tr("Guide"));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  connect(button, &QToolButton::clicked, this, open);
  panel->menuBar()->setCornerWidget(button);
}

GuideWindow& Help::guide() {
  if (guide_ == nullptr) {
    guide_ = std::make_unique<GuideWindow>();
    connect(&guide_->page(), &GuidePage::DemonstrationChosen, this, [this](const QString& name) {
      guide_->close();
      Q_EMIT DemonstrationChosen(name);
    });
  }
  return *guide_;
}

// While the splash stands the panel is not made or not shown yet, and there is no task to tell
// about.
void Help::Open(const Form& form, QWidget& window) {
  if (quilla_.panel() == nullptr || !quilla_.panel()->form().visible()) return;
  guide().Open(window, SectionOf(form, quilla_.panel()->session().CurrentPanelState));
}

}  // namespace quilla

#include "moc_help.cpp"
