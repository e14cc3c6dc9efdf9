#include "window/guide_window.h"

#include <QAbstractTextDocumentLayout>
#include <QBoxLayout>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProxyStyle>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QStyleHintReturnVariant>
#include <QStyleOption>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QWindow>
#include <algorithm>

namespace quilla {
namespace {

constexpr const char* kGuide = "qrc:/docs/guide.md";
constexpr const char* kDemonstration = "demo";
constexpr int kGuideMargin = 16;
constexpr int kNarrowestPicture = 200;
constexpr int kWidestPicture = 680;
constexpr int kSmallestZoom = -4;
constexpr int kLargestZoom = 20;
constexpr int kGuideWidthInDigits = 100;
constexpr int kLines = 42;

/// The anchor of a heading, as links write it: "Data bytes" is #data-bytes.
QString AnchorOf(const QString& heading) {
  static const QRegularExpression kDropped(QStringLiteral(R"([^\w\- ])"));
  return heading.toLower().remove(kDropped).replace(u' ', u'-');
}

void NameHeadings(QTextDocument& page) {
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || block.text().isEmpty()) continue;
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    QTextCharFormat name;
    name.setAnchor(true);
    name.setAnchorNames({AnchorOf(block.text())});
    cursor.mergeCharFormat(name);
  }
}

/// A page in HTML, its headings named. A view that took the Markdown itself would lay out every
/// table anew for each cell.
QString HtmlOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QTextDocument page;
  page.setMarkdown(QString::fromUtf8(file.readAll()));
  NameHeadings(page);
  return page.toHtml();
}

/// Where a text or an example is installed, wherever the program stands.
QString InstalledPath(const QString& path) {
  return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/" QUILLA_TEXTS + path);
}

/// Shows the link with the focus as what is selected; the dots around it that styles have are
/// hardly seen.
class LinkFocusStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    auto* const look = qstyleoption_cast<QStyleHintReturnVariant*>(result);
    if (hint != SH_TextControl_FocusIndicatorTextCharFormat || look == nullptr) {
      return QProxyStyle::styleHint(hint, option, widget, result);
    }
    QTextCharFormat format;
    format.setBackground(option->palette.highlight());
    format.setForeground(option->palette.highlightedText());
    look->variant = format;
    return 1;
  }
};

void AddShortcut(GuideWindow* window, const QKeySequence& keys, const std::function<void()>& act) {
  QObject::connect(new QShortcut(keys, window), &QShortcut::activated, window, act);
}

}  // namespace

GuidePage::GuidePage(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);
  document()->setDocumentMargin(kGuideMargin);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // the room for pictures stays what it is
  auto* const style = new LinkFocusStyle;
  style->setParent(this);
  setStyle(style);
  connect(this, &QTextBrowser::anchorClicked, this, &GuidePage::Follow);
}

void GuidePage::TurnTo(const QString& anchor) {
  QUrl url(kGuide);
  if (!anchor.isEmpty()) url.setFragment(anchor);
  setSource(url, QTextDocument::HtmlResource);
  document()->documentLayout()->documentSize();  // lays out all, so that a place is where it stays
}

// The colours of links stand in the page that has been read.
void GuidePage::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && !source().isEmpty()) reload();
}

// Tab goes on from what is being read, which may be far from the link that had the focus last.
bool GuidePage::focusNextPrevChild(bool next) {
  const QRect view = viewport()->rect();
  if (!textCursor().hasSelection() || !view.intersects(cursorRect())) {
    QTextCursor here = cursorForPosition(next ? view.topLeft() : view.bottomRight());
    here.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    setTextCursor(here);
  }
  return QTextBrowser::focusNextPrevChild(next);
}

void GuidePage::Zoom(int steps) {
  const int wanted = qBound(kSmallestZoom, zoom_ + steps, kLargestZoom);
  zoomIn(wanted - zoom_);
  zoom_ = wanted;
}

// What is not compiled in, such as a folder of examples, is shown by the desktop.
void GuidePage::Follow(const QUrl& link) {
  if (link.scheme() == kDemonstration) {
    Q_EMIT DemonstrationChosen(link.path());
    return;
  }
  const QUrl target = source().resolved(link);
  if (target.scheme() == u"qrc" && QFile::exists(u':' + target.path())) {
    setSource(target, QTextDocument::HtmlResource);
  } else if (const QString path = InstalledPath(target.path()); QFile::exists(path)) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
  }
}

QVariant GuidePage::loadResource(int type, const QUrl& url) {
  if (type == QTextDocument::HtmlResource) return HtmlOf(u':' + url.path());
  QVariant resource = QTextBrowser::loadResource(type, url);
  if (type != QTextDocument::ImageResource) return resource;
  return Fitting(QImage::fromData(resource.toByteArray()));
}

// A picture of few colours would be made smaller with no others than these, in dots.
QImage GuidePage::Fitting(const QImage& picture) const {
  const int room =
      std::clamp(viewport()->width() - 2 * kGuideMargin, kNarrowestPicture, kWidestPicture);
  if (picture.width() <= room) return picture;
  const double scale = devicePixelRatioF();
  const int width = std::min(picture.width(), qRound(room * scale));
  QImage fitting = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                       .scaledToWidth(width, Qt::SmoothTransformation);
  fitting.setDevicePixelRatio(static_cast<double>(width) / room);
  return fitting;
}

GuideWindow::GuideWindow() {
  setObjectName("GuideWindow");
  setWindowTitle(tr("Guide"));
  auto* const back = new QPushButton(tr("&Back"), this);
  auto* const contents = new QPushButton(tr("&Contents"), this);
  back->setEnabled(false);
  connect(back, &QPushButton::clicked, page_, &QTextBrowser::backward);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
  connect(contents, &QPushButton::clicked, page_, [this] { page_->TurnTo({}); });
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(back);
  buttons->addWidget(contents);
  buttons->addStretch();
  auto* const column = new QVBoxLayout(this);
  column->addLayout(buttons);
  column->addWidget(page_);
  page_->setFocus();

  AddShortcut(this, QKeySequence::ZoomIn, [this] { page_->Zoom(1); });
  AddShortcut(this, Qt::CTRL | Qt::Key_Equal, [this] { page_->Zoom(1); });
  AddShortcut(this, QKeySequence::ZoomOut, [this] { page_->Zoom(-1); });
  AddShortcut(this, Qt::CTRL | Qt::Key_0, [this] { page_->ZoomBack(); });
  AddShortcut(this, Qt::Key_Escape, [this] { close(); });
  const QRect place = screen()->availableGeometry();
  const QSize wanted(kGuideWidthInDigits * fontMetrics().horizontalAdvance(u'0'),
                     kLines * fontMetrics().lineSpacing());
  resize(wanted.boundedTo(place.size() * 4 / 5));
  move(place.right() - width() - kGuideMargin, place.top());  // the program's rows stay in view
}

// A window whose transient parent is a modal dialog can be used beside it.
void GuideWindow::Open(QWidget& owner, const QString& anchor) {
  winId();  // makes the window's handle
  if (windowHandle()->transientParent() != owner.windowHandle()) {
    hide();
    windowHandle()->setTransientParent(owner.windowHandle());
  }
  showNormal();
  raise();
  activateWindow();
  page_->TurnTo(anchor);
}

}  // namespace quilla

#include "moc_guide_window.cpp"
