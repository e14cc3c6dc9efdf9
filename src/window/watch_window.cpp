#include "window/watch_window.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <vector>

#include "window/keypad.h"

namespace quilla {
namespace {

constexpr int kGap = 14;
constexpr int kRegisterWidth = 26;
constexpr int kCellWidth = 24;
constexpr int kLineWidth = 24;
constexpr int kInstructionWidth = 56;
constexpr int kFirstLine = 1;
constexpr int kLastLine = 5;
constexpr int kInterruptRows = 7;
constexpr int kTallRows = 20;

/// Makes a table as high as its heading and so many rows.
void ShowRows(GridView& table, int rows) {
  const int row_height = table.verticalHeader()->defaultSectionSize();
  const int heading = table.horizontalHeader()->sizeHint().height();
  table.setFixedHeight(heading + rows * row_height + 2 * table.frameWidth());
  table.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

/// The keys, each on the level of its row of the table, with an arrow to the table.
QLayout* StandBeside(const GridView& table, const std::vector<QWidget*>& keys) {
  auto* const grid = new QGridLayout;
  grid->setSpacing(0);
  grid->setRowMinimumHeight(0, table.horizontalHeader()->sizeHint().height() + table.frameWidth());
  int row = 1;
  for (QWidget* key : keys) {
    key->setFixedHeight(table.verticalHeader()->defaultSectionSize());
    grid->addWidget(new QLabel(QStringLiteral(" \u25C0 "), key->parentWidget()), row, 0);
    grid->addWidget(key, row++, 1);
  }
  grid->setRowStretch(row, 1);
  return grid;
}

}  // namespace

WatchWindow::WatchWindow(Gate& gate, EventLoop& event_loop, Form& form)
    : QWidget(nullptr, Qt::Window), mirror_(gate, event_loop, form, *this), make_(mirror_, this) {
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
  auto* const column = new QVBoxLayout(this);
  column->setSpacing(kGap);
  column->addLayout(MakeInstruction());
  column->addLayout(tables, 1);
}

GridView* WatchWindow::MakeTable(const char* name, int width_in_digits) {
  auto* const table = static_cast<GridView*>(make_.Make(name));
  table->setFixedWidth(DigitsWidth(*table, width_in_digits));
  return table;
}

QLayout* WatchWindow::MakeInstruction() {
  GridView* const table = MakeTable("InstructionTable", kInstructionWidth);
  table->setColumnHidden(0, true);
  ShowRows(*table, 1);
  auto* const line = new QHBoxLayout;
  line->setSpacing(kGap);
  line->addWidget(table);
  line->addWidget(make_.Make("ExecuteButton"));
  line->addWidget(make_.Make("StepNoteLabel"), 1);
  auto* const column = new QVBoxLayout;
  column->addWidget(make_.MakeBold("InstructionCaption"));
  column->addLayout(line);
  return column;
}

QBoxLayout* WatchWindow::MakeTall(const char* caption, const char* name, int width_in_digits) {
  GridView* const table = MakeTable(name, width_in_digits);
  table->setMinimumHeight(kTallRows * table->verticalHeader()->defaultSectionSize());
  auto* const column = new QVBoxLayout;
  column->addWidget(make_.MakeBold(caption));
  column->addWidget(table, 1);
  return column;
}

QLayout* WatchWindow::MakePorts() {
  auto* const column = MakeTall("PortCaption", "PortTable", kCellWidth);
  auto* const force = new QHBoxLayout;
  for (const char* name : {"PortAddrCaption", "PortAddrList", "ValueCaption", "ValueList"}) {
    force->addWidget(make_.Make(name));
  }
  column->addLayout(force);
  column->addWidget(make_.Make("ForceButton"));
  return column;
}

QLayout* WatchWindow::MakeLines() {
  GridView* const table = MakeTable("InterruptTable", kLineWidth);
  std::vector<QWidget*> keys;
  for (int line = kFirstLine; line <= kLastLine; ++line) {
    keys.push_back(make_.Make("IButton", line, ButtonShape::kKey));
  }
  table->verticalHeader()->setDefaultSectionSize(keys.front()->sizeHint().height());
  ShowRows(*table, kInterruptRows);
  auto* const row = new QHBoxLayout;
  row->setSpacing(0);
  row->addWidget(table);
  row->addLayout(StandBeside(*table, keys));
  auto* const column = new QVBoxLayout;
  column->addWidget(make_.MakeBold("InterruptCaption"));
  column->addLayout(row);
  return column;
}

QWidget* WatchWindow::MakeStartingAddress() {
  auto* const box = new QWidget(this);
  const WidgetMaker make(mirror_, box);
  auto* const line = new QHBoxLayout;
  line->addWidget(make.Make("AddrCaption"));
  line->addWidget(MakeBigDigits(make, "AddrLbl"));
  line->addStretch();
  auto* const column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(line);
  column->addWidget(MakeKeypad(mirror_, box, "NUM"));
  column->addWidget(make.Make("AcceptButton"));
  mirror_.Bind(dynamic_cast<Box&>(*mirror_.form().Find("AddrBox")), *box);
  return box;
}

}  // namespace quilla
