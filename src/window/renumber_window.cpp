#include "window/renumber_window.h"

#include <QBoxLayout>
#include <QGridLayout>

#include "window/bindings.h"
#include "window/keypad.h"
#include "window/quiet_label.h"

namespace quilla {
namespace {

constexpr int kTableWidthInDigits = 46;
constexpr int kTableRows = 14;
constexpr int kSpacing = 16;

// What comes and goes keeps its place, so that nothing jumps.
void KeepPlace(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

}  // namespace

struct RenumberWindow::PageNames {
  const char* frame;
  const char* table;
  const char* box;
  const char* name;
  const char* digits;
  const char* accept;
};

RenumberWindow::RenumberWindow(Gate& gate, EventLoop& event_loop, Form& form)
    : QWidget(nullptr, Qt::Dialog), mirror_(gate, event_loop, form, *this) {
  setWindowModality(Qt::ApplicationModal);
  auto* const options = new QHBoxLayout;
  options->setSpacing(kSpacing);
  options->addWidget(Make(mirror_, this, "LabelsOption"));
  options->addWidget(Make(mirror_, this, "VariablesOption"));
  options->addStretch();
  auto* const pages = new QVBoxLayout;
  pages->addWidget(MakePage(
      {"LabelFrame", "LabelTable", "EqtBox", "LabelLabel", "EqtLabel", "EqtAcceptButton"}));
  pages->addWidget(MakePage(
      {"VariableFrame", "VariableTable", "XXBox", "VariableLabel", "XXLabel", "XXAcceptButton"}));
  auto* const grid = new QGridLayout(this);
  grid->setHorizontalSpacing(kSpacing);
  grid->addLayout(options, 0, 0);
  auto* const how = new QuietLabel(
      "Click a name, or press Space on it, and give its number: digits, then Enter.\n"
      "Done takes the new numbers over; closing the window leaves the old ones.",
      this);
  grid->addWidget(how, 3, 0, 1, 2);
  grid->addLayout(pages, 1, 0, 2, 1);
  grid->addWidget(MakeDigitKeys(), 1, 1, Qt::AlignTop);
  grid->addWidget(Make(mirror_, this, "DoneButton"), 2, 1, Qt::AlignBottom | Qt::AlignRight);
  grid->setRowStretch(1, 1);
  mirror_.focus_home = [this] {
    for (GridView* table : findChildren<GridView*>()) {
      if (table->isVisible()) table->setFocus(Qt::OtherFocusReason);
    }
  };
}

QWidget* RenumberWindow::MakePage(const PageNames& names) {
  auto* const page = new QWidget(this);
  auto* const column = new QVBoxLayout(page);
  column->setContentsMargins(0, 0, 0, 0);
  QWidget* const table = MakeTable(mirror_, page, names.table);
  table->setMinimumSize(DigitsWidth(*this, kTableWidthInDigits),
                        kTableRows * fontMetrics().lineSpacing());
  column->addWidget(table, 1);

  auto* const edit = new QWidget(page);
  auto* const row = new QHBoxLayout(edit);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kSpacing);
  QWidget* const name = MakeBold(mirror_, edit, names.name);
  name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a long one is cut
  row->addWidget(name, 1);
  row->addWidget(MakeBigDigits(mirror_, edit, names.digits));
  row->addWidget(Make(mirror_, edit, names.accept));
  KeepPlace(*edit);
  column->addWidget(edit);
  Bind(mirror_, mirror_.Get<Box>(names.box), *edit);
  Bind(mirror_, mirror_.Get<Box>(names.frame), *page);
  return page;
}

QWidget* RenumberWindow::MakeDigitKeys() {
  auto* const box = new QWidget(this);
  auto* const column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(MakeKeypad(mirror_, box, "NUM"));
  KeepPlace(*box);
  Bind(mirror_, mirror_.Get<Box>("DigitBox"), *box);
  return box;
}

}  // namespace quilla

#include "moc_renumber_window.cpp"
