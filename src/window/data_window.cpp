#include "window/data_window.h"

#include <QBoxLayout>

#include "window/keypad.h"
#include "window/widgets.h"

namespace quilla {
namespace {

constexpr int kTableWidthInDigits = 40;
constexpr int kTableRows = 22;
constexpr int kOptions = 3;
constexpr int kSpacing = 16;

}  // namespace

DataWindow::DataWindow(Gate& gate, EventLoop& event_loop, Form& form)
    : QWidget(nullptr, Qt::Dialog), mirror_(gate, event_loop, form, *this) {
  setWindowModality(Qt::ApplicationModal);
  const WidgetMaker make(mirror_, this);
  QWidget* const table = make.Make("DataTable");
  table->setMinimumSize(DigitsWidth(*table, kTableWidthInDigits),
                        kTableRows * table->fontMetrics().lineSpacing());
  auto* const type = new QHBoxLayout;
  type->addWidget(make.Make("Label5"));
  type->addWidget(make.MakeBold("DataTypeLabel"), 1);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(make.Make("DoneButton"));
  buttons->addWidget(make.Make("CancelButton"));
  auto* const side = new QVBoxLayout;
  side->addLayout(type);
  for (int i = 0; i < kOptions; ++i) {
    side->addWidget(make.Make("DataType", i), 0, Qt::AlignLeft);
  }
  side->addStretch();
  side->addLayout(buttons);
  auto* const row = new QHBoxLayout(this);
  row->setSpacing(kSpacing);
  row->addWidget(table, 1);
  row->addLayout(side);
}

}  // namespace quilla
