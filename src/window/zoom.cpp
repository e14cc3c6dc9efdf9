#include "window/zoom.h"

#include <QApplication>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QWheelEvent>
#include <algorithm>

#include "window/grid_view.h"
#include "window/key_button.h"
#include "window/screen_room.h"

namespace quilla {
namespace {

constexpr double kStep = 1.1;
constexpr double kSmallest = 0.7;
constexpr double kLargest = 4;

// The program's fonts for the two classes hold how far they are zoomed, in every window.
void SetFont(const QMetaObject& widgets, double factor) {
  QFont font = QApplication::font();
  font.setPointSizeF(font.pointSizeF() * factor);
  QApplication::setFont(font, widgets.className());
}

double ZoomOfTables() {
  return QApplication::font(GridView::staticMetaObject.className()).pointSizeF() /
         QApplication::font().pointSizeF();
}

QWidgetList WindowsOnView() {
  QWidgetList windows = QApplication::topLevelWidgets();
  const auto is_no_layout = [](const QWidget* window) {
    return !window->isVisible() || window->layout() == nullptr;
  };
  windows.erase(std::remove_if(windows.begin(), windows.end(), is_no_layout), windows.end());
  return windows;
}

void SetConstraint(const QWidgetList& windows, QLayout::SizeConstraint constraint) {
  for (const QWidget* window : windows) window->layout()->setSizeConstraint(constraint);
}

// Qt would lay out only later, and window by window.
void LayOutAround(const QWidget* key) {
  for (QWidget* each = key->parentWidget(); each != nullptr; each = each->parentWidget()) {
    if (each->layout() != nullptr) each->layout()->activate();
    each->updateGeometry();
  }
}

bool Fits(const QWidget* window) {
  const QSize needed = window->layout()->totalMinimumSize();
  return needed.boundedTo(window->size()) == needed;
}

// A window that scrolls grows where the screen has room, so that it need not.
void GrowAround(QWidget& window) {
  const auto* const area = window.findChild<QScrollArea*>({}, Qt::FindDirectChildrenOnly);
  if (area == nullptr || window.isMaximized()) return;
  const QSize needed = area->widget()->minimumSizeHint() +
                       QSize(area->style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
  window.resize(window.size().expandedTo(needed).boundedTo(RoomOnScreen(window)));
  const QRect screen = window.screen()->availableGeometry();
  const QRect frame = window.frameGeometry();
  window.move(window.pos() - QPoint(std::max(0, frame.right() - screen.right()),
                                    std::max(0, frame.bottom() - screen.bottom())));
}

void ZoomTo(double factor) {
  factor = std::clamp(factor, kSmallest, kLargest);
  SetFont(GridView::staticMetaObject, factor);
  const QWidgetList windows = WindowsOnView();
  SetConstraint(windows, QLayout::SetNoConstraint);  // trying a size must not push a window's edge
  for (double keys = factor;; keys /= kStep) {
    SetFont(KeyButton::staticMetaObject, keys);
    for (const QWidget* window : windows) {
      for (const KeyButton* key : window->findChildren<KeyButton*>()) LayOutAround(key);
    }
    if (keys <= 1 || std::all_of(windows.begin(), windows.end(), Fits)) break;
  }
  SetConstraint(windows, QLayout::SetDefaultConstraint);
  for (QWidget* window : windows) GrowAround(*window);
}

class Wheel final : public QObject {
 public:
  explicit Wheel(QWidget& window) : QObject(&window), window_(window) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Wheel || !watched->isWidgetType()) return false;
    const auto& wheel = static_cast<const QWheelEvent&>(*event);
    const bool zooms = wheel.modifiers() == Qt::ControlModifier &&
                       static_cast<const QWidget*>(watched)->window() == &window_;
    if (!zooms) return false;
    turned_ += wheel.angleDelta().y();
    for (; turned_ >= kNotch; turned_ -= kNotch) ZoomTo(ZoomOfTables() * kStep);
    for (; turned_ <= -kNotch; turned_ += kNotch) ZoomTo(ZoomOfTables() / kStep);
    return true;
  }

 private:
  static constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;

  QWidget& window_;
  int turned_ = 0;  // what is left of a notch
};

}  // namespace

void AddZoom(QWidget& window) {
  const auto add = [&window](const QKeySequence& keys, double (*zoom)()) {
    QObject::connect(new QShortcut(keys, &window), &QShortcut::activated, &window,
                     [zoom] { ZoomTo(zoom()); });
  };
  for (const Qt::Key larger : {Qt::Key_Plus, Qt::Key_Equal}) {
    add(Qt::CTRL | larger, [] { return ZoomOfTables() * kStep; });
  }
  add(Qt::CTRL | Qt::Key_Minus, [] { return ZoomOfTables() / kStep; });
  add(Qt::CTRL | Qt::Key_0, [] { return 1.0; });
  new Wheel(window);
}

}  // namespace quilla
