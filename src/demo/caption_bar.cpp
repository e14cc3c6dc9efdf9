#include "demo/caption_bar.h"

#include <QBoxLayout>
#include <QScreen>
#include <QWindow>

namespace quilla::demo {
namespace {

constexpr int kWidthInDigits = 80;
constexpr int kCaptionLines = 3;
constexpr int kMargin = 12;
/// How much of a window's height stays free under the bar: the keys of the panel.
constexpr double kFreeBelow = 0.25;

/// Where the part of a window ends that a demonstration can do without, on the screen: the panel's
/// keys lie below its table.
int EndOfFreePart(const QWidget& window) {
  if (const auto* const table = window.findChild<QWidget*>("Table1")) {
    return table->mapToGlobal(QPoint(0, table->height())).y();
  }
  const QRect place = window.frameGeometry();
  return place.bottom() - static_cast<int>(place.height() * kFreeBelow);
}

}  // namespace

// The bar never takes the focus: the keys go to the program, as they do without it.
CaptionBar::CaptionBar() {
  setObjectName("CaptionBar");
  setWindowTitle(tr("Show me"));
  setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFrameShape(QFrame::Box);
  setBackgroundRole(QPalette::ToolTipBase);
  setAutoFillBackground(true);
  caption_->setForegroundRole(QPalette::ToolTipText);
  caption_->setTextFormat(Qt::PlainText);
  caption_->setWordWrap(true);
  caption_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  QFont large = caption_->font();
  large.setPointSizeF(large.pointSizeF() * 1.15);
  caption_->setFont(large);
  caption_->setMinimumHeight(kCaptionLines * QFontMetrics(large).lineSpacing());
  pause_->setToolTip(tr("Space"));
  step_->setToolTip(tr("Right"));
  faster_->setToolTip("+");
  stop_->setToolTip(tr("Esc"));

  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  for (QPushButton* button : {pause_, step_, faster_, stop_}) buttons->addWidget(button);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(caption_, 1);
  column->addLayout(buttons);
  setFixedWidth(kWidthInDigits * fontMetrics().horizontalAdvance(u'0'));
  connect(pause_, &QPushButton::clicked, this, &CaptionBar::PauseClicked);
  connect(step_, &QPushButton::clicked, this, &CaptionBar::StepClicked);
  connect(faster_, &QPushButton::clicked, this, &CaptionBar::FasterClicked);
  connect(stop_, &QPushButton::clicked, this, &CaptionBar::StopClicked);
}

QPushButton* CaptionBar::MakeButton(const QString& text) {
  auto* const button = new QPushButton(text, this);
  button->setFocusPolicy(Qt::NoFocus);
  return button;
}

void CaptionBar::SetCaption(const QString& text) { caption_->setText(text); }

void CaptionBar::ShowPaused(bool paused) { pause_->setText(paused ? tr("Go on") : tr("Pause")); }

void CaptionBar::ShowSpeed(int speed) {
  faster_->setText(speed == 1 ? tr("Faster") : tr("Faster (×%1)").arg(speed));
}

void CaptionBar::ShowOver() {
  for (QPushButton* button : {pause_, step_, faster_}) button->hide();
  stop_->setText(tr("Close"));
}

void CaptionBar::StandOver(QWidget& window) {
  winId();  // makes the window's handle
  if (isVisible() && windowHandle()->transientParent() == window.windowHandle()) return;
  hide();
  windowHandle()->setTransientParent(window.windowHandle());
  adjustSize();
  const QRect screen = window.screen()->availableGeometry();
  const QRect place = window.frameGeometry();
  const bool fits_below = place.bottom() + height() <= screen.bottom();
  const int left = fits_below ? place.left() : place.right() - width() - 2 * kMargin;
  const int top = fits_below ? place.bottom() : EndOfFreePart(window) - height();
  move(qBound(screen.left(), left, screen.right() - width()), qMax(screen.top(), top));
  show();
}

void CaptionBar::mousePressEvent(QMouseEvent* /*event*/) { windowHandle()->startSystemMove(); }

}  // namespace quilla::demo

#include "moc_caption_bar.cpp"
