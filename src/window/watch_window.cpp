#include "window/watch_window.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>

#include "platform/number_text.h"
#include "program/vocabulary.h"
#include "window/bindings.h"
#include "window/key_button.h"
#include "window/keypad.h"
#include "window/quiet_label.h"
#include "window/screen_room.h"

namespace quilla {
namespace {

// A window manager keeps none but a dialog over the window that owns it.
constexpr Qt::WindowFlags kOwnedWindow = Qt::Dialog | Qt::WindowTitleHint |
                                         Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                                         Qt::WindowCloseButtonHint;
constexpr int kGap = 14;
constexpr int kLineGap = 6;
constexpr int kRegisterWidth = 26;
constexpr int kCellWidth = 24;
constexpr int kLineWidth = 24;
constexpr int kInstructionWidth = 46;
constexpr int kInterruptRows = 7;
constexpr int kFewestRows = 6;
constexpr int kPreferredWatchLines = 46;

QString MeaningOfLine(CellColor color) {
  if (color == kEnabledColor) return "enabled";
  return color == kMaskedColor ? QString("masked") : QString();
}

}  // namespace

WatchWindow::WatchWindow(Gate& gate, EventLoop& event_loop, Form& form)
    : QWidget(nullptr, kOwnedWindow), mirror_(gate, event_loop, form, *this) {
  // In the order of their use, which is the order in which Tab leads through them.
  auto* const content = new QWidget(this);
  auto* const column = new QVBoxLayout(content);
  column->setSpacing(kGap);
  auto* const step = new QHBoxLayout;
  step->setSpacing(2 * kGap);
  step->addWidget(MakeStartingAddress(), 0, Qt::AlignTop);
  step->addLayout(MakeInstruction(), 1);
  column->addLayout(step);
  auto* const tables = new QGridLayout;
  tables->setHorizontalSpacing(kGap);
  tables->setVerticalSpacing(kLineGap);
  tables->addWidget(MakeHeadedTable("RegisterCaption", "RegisterTable", kRegisterWidth), 1, 0);
  tables->addWidget(MakeBold(mirror_, this, "MemoryCaption"), 0, 1);
  tables->addWidget(MakeTallTable("MemoryTable", kCellWidth), 1, 1);
  tables->addWidget(MakeBold(mirror_, this, "PortCaption"), 0, 2);
  tables->addLayout(MakePorts(), 1, 2);
  tables->addLayout(MakeLines(), 1, 3);
  tables->setColumnStretch(3, 1);
  tables->setRowStretch(1, 1);
  column->addLayout(tables, 1);
  findChild<GridView*>("MemoryTable")->SetAddressDigits(kAddressDigits);
  findChild<GridView*>("PortTable")->SetAddressDigits(kByteDigits);
  mirror_.passes_characters_on = false;
  PutInScrollArea(*content);
}

// Where the screen has no room for the whole, it scrolls.
void WatchWindow::PutInScrollArea(QWidget& content) {
  auto* const area = new QScrollArea(this);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  area->setWidget(&content);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(area);
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const QSize wish(content.sizeHint().width() + bar,
                   kPreferredWatchLines * fontMetrics().lineSpacing());
  resize(wish.expandedTo(content.minimumSizeHint()).boundedTo(RoomOnScreen(*this)));
}

GridView* WatchWindow::MakeTallTable(const char* name, int width_in_digits) {
  GridView* const table = MakeTable(mirror_, this, name);
  table->SetExtent(width_in_digits, kFewestRows, Qt::Horizontal);
  return table;
}

// The heading of its columns says what the caption says.
GridView* WatchWindow::MakeHeadedTable(const char* caption, const char* name, int width_in_digits) {
  GridView* const table = MakeTallTable(name, width_in_digits);
  mirror_.Register(mirror_.Get<Label>(caption), *table->horizontalHeader());
  return table;
}

QLayout* WatchWindow::MakeInstruction() {
  auto* const line = new QHBoxLayout;
  line->setSpacing(kGap);
  GridView* const table = MakeTable(mirror_, this, "InstructionTable");
  table->SetExtent(kInstructionWidth, 1, Qt::Horizontal | Qt::Vertical);
  execute_ = Make(mirror_, this, "ExecuteButton");
  line->addWidget(execute_);
  table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  line->addWidget(table);
  line->addStretch();
  auto* const column = new QVBoxLayout;
  column->setSpacing(kLineGap);
  column->addWidget(MakeBold(mirror_, this, "InstructionCaption"));
  column->addLayout(line);
  column->addWidget(Make(mirror_, this, "StepNoteLabel"));
  column->addStretch(1);
  return column;
}

QLayout* WatchWindow::MakePorts() {
  auto* const column = new QVBoxLayout;
  column->setSpacing(kLineGap);
  column->addWidget(MakeTallTable("PortTable", kCellWidth), 1);
  auto* const force = new QGridLayout;
  force->addWidget(Make(mirror_, this, "PortAddrCaption"), 0, 0);
  force->addWidget(Make(mirror_, this, "ValueCaption"), 0, 1);
  force->addWidget(Make(mirror_, this, "PortAddrList"), 1, 0);
  force->addWidget(Make(mirror_, this, "ValueList"), 1, 1);
  force->addWidget(Make(mirror_, this, "ForceButton"), 2, 0, 1, 2);
  column->addLayout(force);
  return column;
}

QLayout* WatchWindow::MakeLines() {
  GridView* const table = MakeHeadedTable("InterruptCaption", "InterruptTable", kLineWidth);
  table->set_meaning(MeaningOfLine);
  table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* const keys = new QGridLayout;
  keys->setSpacing(0);
  QWidgetList in_rows;
  int line = 0;
  for (const char* arrow : {"TRAP", "RST75", "RST65", "RST55", "INTR"}) {
    QWidget* const key = MakeKey(mirror_, this, "IButton", ++line);
    key->setFocusPolicy(Qt::TabFocus);
    keys->addWidget(MakeArrow(arrow), line, 0);
    keys->addWidget(key, line, 1);
    in_rows << key;
  }
  keys->setRowStretch(line + 1, 1);
  // Each key stands on the level of its row.
  const auto align = [table, keys, in_rows](int height) {
    table->SetExtent(kLineWidth, kInterruptRows, Qt::Horizontal | Qt::Vertical);
    keys->setRowMinimumHeight(0, table->horizontalHeader()->minimumHeight() + table->frameWidth());
    for (QWidget* key : in_rows) key->setFixedHeight(height);
  };
  connect(table, &GridView::RowsFitted, this, align);
  table->HoldKeysInRows();
  align(table->verticalHeader()->defaultSectionSize());
  auto* const row = new QHBoxLayout;
  row->setSpacing(0);
  row->addWidget(table, 0, Qt::AlignTop);
  row->addLayout(keys);
  row->addStretch(1);
  auto* const column = new QVBoxLayout;
  column->setSpacing(kLineGap);
  column->addLayout(row);
  column->addSpacing(kGap);
  column->addWidget(
      new QuietLabel("A key sets its line: a click turns it\n"
                     "over, and RST 7.5 is 1 while it is held.\n"
                     "Green lines are heard, red ones masked.",
                     this));
  column->addStretch();
  return column;
}

QWidget* WatchWindow::MakeArrow(const char* name) {
  auto* const arrow = new QWidget(this);
  auto* const layout = new QHBoxLayout(arrow);
  layout->setContentsMargins(4, 0, 4, 0);
  layout->addWidget(new QLabel(QStringLiteral("\u25C0"), arrow));
  Bind(mirror_, mirror_.Get<Box>(name), *arrow);
  return arrow;
}

QWidget* WatchWindow::MakeStartingAddress() {
  auto* const box = new QWidget(this);
  auto* const value = new QVBoxLayout;
  value->setSpacing(kLineGap);
  value->addWidget(Make(mirror_, box, "AddrCaption"));
  value->addWidget(MakeBigDigits(mirror_, box, "AddrLbl"));
  auto* const accept = static_cast<QAbstractButton*>(Make(mirror_, box, "AcceptButton"));
  value->addWidget(accept);
  value->addStretch();
  auto* const line = new QHBoxLayout(box);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(kGap);
  line->addLayout(value);
  line->addWidget(MakeKeypad(mirror_, box, "NUM"), 0, Qt::AlignTop);
  // What follows a starting address is stepping.
  connect(accept, &QAbstractButton::clicked, this,
          [this] { execute_->setFocus(Qt::OtherFocusReason); });
  Bind(mirror_, mirror_.Get<Box>("AddrBox"), *box);
  return box;
}

}  // namespace quilla

#include "moc_watch_window.cpp"
