#include "window/box_area.h"

#include <QEvent>
#include <algorithm>
#include <utility>

namespace quilla {

/// Watches a box until it first comes into sight. What the builder makes watches it from then on.
class BoxArea::Slot : public ControlObserver {
  Q_DISABLE_COPY_MOVE(Slot)

 public:
  Slot(BoxArea& area, Box& box, Builder builder)
      : area_(area), box_(box), builder_(std::move(builder)) {
    box_.observer = this;
    if (box_.visible()) Build();
  }
  ~Slot() override {
    if (box_.observer == this) box_.observer = nullptr;
  }

  void PropertyChanged(Property property) override {
    if (property == Property::kVisible && box_.visible()) Build();
  }

 private:
  void Build() { area_.Place(*builder_(&area_)); }

  BoxArea& area_;
  Box& box_;
  Builder builder_;
};

BoxArea::BoxArea(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

BoxArea::~BoxArea() = default;

void BoxArea::Add(Box& box, Builder builder) {
  slots_.push_back(std::make_unique<Slot>(*this, box, std::move(builder)));
}

void BoxArea::Place(QWidget& page) {
  page.setAutoFillBackground(true);
  page.setGeometry(rect());
  page.installEventFilter(this);
  pages_.push_back(&page);
  page.raise();
  if (page.isVisibleTo(this)) page.show();
  updateGeometry();
}

QWidget* BoxArea::top() const {
  const auto page = std::find_if(pages_.rbegin(), pages_.rend(),
                                 [this](const QWidget* each) { return each->isVisibleTo(this); });
  return page == pages_.rend() ? nullptr : *page;
}

QSize BoxArea::minimumSizeHint() const {
  QSize size;
  for (const QWidget* page : pages_) size = size.expandedTo(page->sizeHint());
  return size;
}

bool BoxArea::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ShowToParent) {
    auto* const page = static_cast<QWidget*>(watched);
    std::erase(pages_, page);
    pages_.push_back(page);
    page->raise();
  }
  return false;
}

// A page needs another room.
bool BoxArea::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) updateGeometry();
  return QWidget::event(event);
}

void BoxArea::resizeEvent(QResizeEvent* /*event*/) {
  for (QWidget* page : pages_) page->setGeometry(rect());
}

}  // namespace quilla

#include "moc_box_area.cpp"
