#include "window/print_info_window.h"

#include <QGridLayout>
#include <QShortcut>

#include "window/bindings.h"
#include "window/quiet_label.h"

namespace quilla {
namespace {

constexpr int kPrintInfoMargin = 20;
constexpr int kColumnSpacing = 32;
constexpr int kColumns = 2;

}  // namespace

PrintInfoWindow::PrintInfoWindow(Gate& gate, EventLoop& event_loop, Form& form)
    : QWidget(nullptr, Qt::Dialog), mirror_(gate, event_loop, form, *this) {
  setWindowModality(Qt::ApplicationModal);
  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(kPrintInfoMargin, kPrintInfoMargin, kPrintInfoMargin, kPrintInfoMargin);
  grid->setHorizontalSpacing(kColumnSpacing);
  int place = 0;
  // The form has its labels in pairs, a caption and its value.
  for (Control* control : form.controls()) {
    const bool is_value = place % kColumns != 0;
    grid->addWidget(Make(mirror_, this, control->name(), control->index()), place / kColumns,
                    place % kColumns, is_value ? Qt::AlignRight : Qt::AlignLeft);
    ++place;
  }
  grid->setRowStretch(grid->rowCount(), 1);
  auto* const close = new QuietLabel("Esc closes this window.", this);
  grid->addWidget(close, grid->rowCount(), 0, 1, kColumns);
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

}  // namespace quilla

#include "moc_print_info_window.cpp"
