#include "window/main_window.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>

#include "program/rows.h"
#include "window/bindings.h"
#include "window/box_pages.h"
#include "window/menus.h"
#include "window/qt_text.h"
#include "window/screen_room.h"

namespace quilla {
namespace {

constexpr const char* kTable = "Table1";
constexpr const char* kInstructionBox = "InstructionBox";
constexpr const char* kTipsBox = "TipsBox";
constexpr const char* kWriteModeBox = "WriteModeBox";
constexpr const char* kCancelButton = "TableCancelButton";

// The size that the window asks for, in widths of a digit and heights of a line.
constexpr int kPreferredDigits = 175;
constexpr int kPreferredLines = 56;

bool TakesTyping(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr;
}

}  // namespace

MainWindow::MainWindow(Gate& gate, EventLoop& event_loop, Form& form)
    : mirror_(gate, event_loop, form, *this) {
  BuildMenus(mirror_, *menuBar());
  auto* const content = new QWidget(this);
  auto* const column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(MakeProgramTable(), 1);
  auto* const separator = new QFrame(content);
  separator->setFrameStyle(QFrame::HLine | QFrame::Sunken);
  column->addWidget(separator);
  column->addWidget(MakeBoxes());
  column->addWidget(MakeTipLine());
  MakeOutOfSight(mirror_, content, kCancelButton);
  setCentralWidget(content);
  for (QWidget* widget : findChildren<QWidget*>()) widget->setMouseTracking(true);
  mirror_.focus_home = [this] { FocusHome(); };
  connect(&gate, &Gate::Entered, this, [this] { box_before_ = boxes_->top(); });
  connect(&gate, &Gate::Left, this, &MainWindow::FocusNewBox);

  const QSize preferred(kPreferredDigits * fontMetrics().horizontalAdvance(u'0'),
                        kPreferredLines * fontMetrics().lineSpacing());
  const QSize room = RoomOnScreen(*this);
  resize(preferred.boundedTo(room));
  if (size() != preferred) setWindowState(Qt::WindowMaximized);
}

QWidget* MainWindow::MakeProgramTable() {
  table_ = MakeTable(mirror_, this, kTable);
  table_->setFrameShape(QFrame::NoFrame);
  table_->ShowLineNumbers();
  table_->SetProse(kCommentColumn);
  table_->set_rows_to_fill(kLeastRows);
  QStringList headings;
  for (int column = 0; column < mirror_.Get<Grid>(kTable).Cols(); ++column) {
    auto& label = mirror_.Get<Label>("HeadLabel", column);
    mirror_.Register(label, *table_->horizontalHeader());
    headings << ToQt(label.caption());
  }
  table_->SetHeadings(headings);
  return table_;
}

QWidget* MainWindow::MakeBoxes() {
  boxes_ = new BoxArea(this);
  for (Control* control : mirror_.form().controls()) {
    auto* const box = dynamic_cast<Box*>(control);
    if (box == nullptr || box->name() == kTipsBox || box->name() == kWriteModeBox) continue;
    if (box->name() == kInstructionBox) {
      instructions_ = new InstructionPage(mirror_, boxes_);
      Bind(mirror_, *box, *instructions_);
      boxes_->Place(*instructions_);
    } else {
      boxes_->Add(*box,
                  [this, box](QWidget* parent) { return BuildBoxPage(mirror_, *box, parent); });
    }
  }
  return boxes_;
}

QWidget* MainWindow::MakeTipLine() {
  auto* const line = new QFrame(this);
  line->setFrameShape(QFrame::StyledPanel);
  auto* const row = new QHBoxLayout(line);
  row->setContentsMargins(6, 2, 6, 2);
  row->addWidget(MakeStrip(kTipsBox, "Tips:", "TipsLabel", 1), 1);
  row->addStretch();
  row->addWidget(MakeStrip(kWriteModeBox, "Write Mode: ", "WriteModeLabel", 0));
  return line;
}

// A box of one line: its heading, then a label.
QWidget* MainWindow::MakeStrip(const char* box, const char* heading, const char* label,
                               int stretch) {
  auto* const strip = new QWidget(this);
  auto* const row = new QHBoxLayout(strip);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(new QLabel(heading, strip));
  QWidget* const text = MakeBold(mirror_, strip, label);
  if (stretch > 0) text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  row->addWidget(text, stretch);
  Bind(mirror_, mirror_.Get<Box>(box), *strip);
  return strip;
}

// While a run takes no input its tip stays readable: it tells how far the run is.
void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::EnabledChange) return;
  QPalette readable;
  readable.setColor(QPalette::Disabled, QPalette::WindowText,
                    palette().color(QPalette::Active, QPalette::WindowText));
  mirror_.WidgetOf(mirror_.Get<Label>("TipsLabel"))->setPalette(readable);
}

// A box that has just opened is what the user goes on with, from wherever it was opened.
void MainWindow::FocusNewBox() {
  const QWidget* const box = boxes_->top();
  if (box == nullptr || box == box_before_ || box == instructions_) return;
  box_before_ = box;
  if (focusWidget() != box && !box->isAncestorOf(focusWidget())) FocusHome();
}

void MainWindow::FocusHome() {
  QWidget* const page = boxes_->top();
  if (page != nullptr && page == instructions_) {
    instructions_->FocusLastKey();
    return;
  }
  QWidget* home = nullptr;
  for (QWidget* widget : page == nullptr ? QWidgetList() : page->findChildren<QWidget*>()) {
    const bool takes_focus = (widget->focusPolicy() & Qt::TabFocus) != 0;
    if (!takes_focus || !widget->isVisible() || !widget->isEnabled()) continue;
    if (home == nullptr || TakesTyping(*widget)) home = widget;
    if (TakesTyping(*home)) break;
  }
  (home == nullptr ? table_ : home)->setFocus(Qt::OtherFocusReason);
}

}  // namespace quilla

#include "moc_main_window.cpp"
