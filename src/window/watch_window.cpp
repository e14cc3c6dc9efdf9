#include "window/watch_window.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>

#include "window/bindings.h"
#include "window/keypad.h"
#include "window/screen_room.h"

namespace quilla {
namespace {

// A window manager keeps none but a dialog over the window that owns it.
constexpr Qt::WindowFlags kOwnedWindow = Qt::Dialog | Qt::WindowTitleHint |
                                         Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                                         Qt::WindowCloseButtonHint;
constexpr int kGap = 14;
constexpr int kRegisterWidth = 26;
constexpr int kCellWidth = 24;
constexpr int kLineWidth = 24;
constexpr int kInstructionWidth = 50;
constexpr int kInterruptRows = 7;
constexpr int kFewestRows = 6;
constexpr int kPreferredLines = 38;
constexpr int kAddressDigits = 4;
constexpr int kPortDigits = 2;

/// Makes a table as high as its heading and so many rows.
void ShowRows(GridView& table, int rows) {
  const int row_height = table.verticalHeader()->defaultSectionSize();
  const int heading = table.horizontalHeader()->minimumHeight();
  table.setFixedHeight(heading + rows * row_height + 2 * table.frameWidth());
  table.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

}  // namespace

WatchWindow::WatchWindow(Gate& gate, EventLoop& event_loop, Form& form)
    : QWidget(nullptr, kOwnedWindow), mirror_(gate, event_loop, form, *this) {
  auto* const tables = new QHBoxLayout;
  tables->setSpacing(kGap);
  tables->addLayout(MakeTall("RegisterCaption", "RegisterTable", kRegisterWidth));
  tables->addLayout(MakeTall("MemoryCaption", "MemoryTable", kCellWidth));
  tables->addLayout(MakePorts());
  auto* const keys = new QVBoxLayout;
  keys->setSpacing(kGap);
  keys->addLayout(MakeLines());
  keys->addStretch();
  keys->addWidget(MakeStartingAddress());
  tables->addLayout(keys);
  tables->addStretch();
  auto* const content = new QWidget(this);
  auto* const column = new QVBoxLayout(content);
  column->setSpacing(kGap);
  column->addLayout(MakeInstruction());
  column->addLayout(tables, 1);
  findChild<GridView*>("MemoryTable")->SetAddressDigits(kAddressDigits);
  findChild<GridView*>("PortTable")->SetAddressDigits(kPortDigits);
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
  const QSize wish(content.sizeHint().width(), kPreferredLines * fontMetrics().lineSpacing());
  resize(wish.expandedTo(content.minimumSizeHint()).boundedTo(RoomOnScreen(*this)));
}

GridView* WatchWindow::MakeTableOfWidth(const char* name, int width_in_digits) {
  GridView* const table = MakeTable(mirror_, this, name);
  table->setFixedWidth(DigitsWidth(*table, width_in_digits));
  return table;
}

QLayout* WatchWindow::MakeInstruction() {
  GridView* const table = MakeTableOfWidth("InstructionTable", kInstructionWidth);
  ShowRows(*table, 1);
  auto* const line = new QHBoxLayout;
  line->setSpacing(kGap);
  line->addWidget(table);
  execute_ = Make(mirror_, this, "ExecuteButton");
  line->addWidget(execute_);
  line->addWidget(Make(mirror_, this, "StepNoteLabel"), 1);
  auto* const column = new QVBoxLayout;
  column->addWidget(MakeBold(mirror_, this, "InstructionCaption"));
  column->addLayout(line);
  return column;
}

QBoxLayout* WatchWindow::MakeTall(const char* caption, const char* table_name,
                                  int width_in_digits) {
  GridView* const table = MakeTableOfWidth(table_name, width_in_digits);
  table->setMinimumHeight(kFewestRows * table->verticalHeader()->defaultSectionSize());
  auto* const column = new QVBoxLayout;
  column->addWidget(MakeBold(mirror_, this, caption));
  column->addWidget(table, 1);
  return column;
}

QLayout* WatchWindow::MakePorts() {
  auto* const column = MakeTall("PortCaption", "PortTable", kCellWidth);
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
  GridView* const table = MakeTableOfWidth("InterruptTable", kLineWidth);
  auto* const keys = new QGridLayout;
  keys->setSpacing(0);
  keys->setRowMinimumHeight(0, table->horizontalHeader()->minimumHeight() + table->frameWidth());
  int line = 0;
  for (const char* arrow : {"TRAP", "RST75", "RST65", "RST55", "INTR"}) {
    // Each key stands on the level of its row.
    QWidget* const key = MakeKey(mirror_, this, "IButton", ++line);
    key->setFixedHeight(key->sizeHint().height());
    table->verticalHeader()->setDefaultSectionSize(key->height());
    keys->addWidget(MakeArrow(arrow), line, 0);
    keys->addWidget(key, line, 1);
  }
  keys->setRowStretch(line + 1, 1);
  ShowRows(*table, kInterruptRows);
  auto* const row = new QHBoxLayout;
  row->setSpacing(0);
  row->addWidget(table);
  row->addLayout(keys);
  auto* const column = new QVBoxLayout;
  column->addWidget(MakeBold(mirror_, this, "InterruptCaption"));
  column->addLayout(row);
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
  auto* const line = new QHBoxLayout;
  line->addWidget(Make(mirror_, box, "AddrCaption"));
  line->addWidget(MakeBigDigits(mirror_, box, "AddrLbl"));
  line->addStretch();
  auto* const column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(line);
  column->addWidget(MakeKeypad(mirror_, box, "NUM"));
  auto* const accept = static_cast<QAbstractButton*>(Make(mirror_, box, "AcceptButton"));
  column->addWidget(accept);
  // What follows a starting address is stepping.
  connect(accept, &QAbstractButton::clicked, this,
          [this] { execute_->setFocus(Qt::OtherFocusReason); });
  Bind(mirror_, mirror_.Get<Box>("AddrBox"), *box);
  return box;
}

}  // namespace quilla
