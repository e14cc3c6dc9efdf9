#include "window/data_window.h"

#include <QBoxLayout>

#include "window/bindings.h"
#include "window/keypad.h"
#include "window/quiet_label.h"

namespace quilla {
namespace {

constexpr int kDataWidthInDigits = 40;
constexpr int kDataRows = 28;
constexpr int kOptions = 3;
constexpr int kDataSpacing = 16;

}  // namespace

DataWindow::DataWindow(Gate& gate, EventLoop& event_loop, Form& form)
    : QWidget(nullptr, Qt::Dialog), mirror_(gate, event_loop, form, *this) {
  setWindowModality(Qt::ApplicationModal);
  const auto make = [this](const char* name) { return Make(mirror_, this, name); };
  GridView* const table = MakeTable(mirror_, this, "DataTable");
  table->setMinimumSize(DigitsWidth(*this, kDataWidthInDigits),
                        kDataRows * fontMetrics().lineSpacing());
  auto* const type = new QHBoxLayout;
  type->addWidget(make("Label5"));
  type->addWidget(MakeBold(mirror_, this, "DataTypeLabel"), 1);
  auto* const side = new QVBoxLayout;
  side->addLayout(type);
  for (int i = 0; i < kOptions; ++i) {
    side->addWidget(Make(mirror_, this, "DataType", i), 0, Qt::AlignLeft);
  }
  side->addWidget(
      new QuietLabel("Choose a type, then drag over\nthe rows that have it, or\n"
                     "Shift with the arrows.\n\n"
                     "Done is grey until a row is an\ninstruction or a data byte.",
                     this));
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(make("DoneButton"));
  buttons->addWidget(make("CancelButton"));
  side->addStretch();
  side->addLayout(buttons);
  auto* const row = new QHBoxLayout(this);
  row->setSpacing(kDataSpacing);
  row->addWidget(table, 1);
  row->addLayout(side);
}

}  // namespace quilla

#include "moc_data_window.cpp"
