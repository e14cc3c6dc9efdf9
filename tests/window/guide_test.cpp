// The guide inside the program: every section that F1 opens is there, and every link leads on.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>

#include "window/help.h"

namespace quilla {
namespace {

bool HasAnchor(const GuidePage& page, const QString& name) {
  return page.toHtml().contains("<a name=\"" + name + '"');
}

TEST(GuideTest, HasTheSectionsOfAllTasks) {
  GuidePage page(nullptr);
  page.TurnTo({});
  const auto expect = [&](const char* window, int state) {
    const QString section = SectionOf(Form(window), PanelState{state});
    EXPECT_TRUE(section.isEmpty() || HasAnchor(page, section)) << section.toStdString();
  };
  for (int state = 1; state <= 35; ++state) expect(kProgrammingPanel, state);
  for (const char* window : {kDataDialog, kRenumberDialog, kPrintInfo, kWatchWindowDialog}) {
    expect(window, 1);
  }
}

TEST(GuideTest, TurnsToASectionAndFollowsItsLinks) {
  GuideWindow guide;
  QWidget panel;
  GuidePage& page = guide.page();
  guide.Open(panel, {});
  QCoreApplication::processEvents();
  EXPECT_EQ(page.verticalScrollBar()->value(), 0);
  const QUrl panel_picture("qrc:/docs/pictures/panel.png");
  const auto picture =
      page.loadResource(QTextDocument::ImageResource, panel_picture).value<QImage>();
  EXPECT_LT(picture.width(), page.viewport()->width());
  EXPECT_GT(picture.depth(), 8) << "of as many colours as it takes to be made smaller";
  guide.Open(panel, "equivalents");
  EXPECT_EQ(page.cursorForPosition({40, 5}).block().text().toStdString(), "Equivalents");
  QFile file(":/docs/guide.md");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QString text = QString::fromUtf8(file.readAll());
  static const QRegularExpression kLink(R"(\]\((?!https:)([^)#]*)#?([^)]*)\))");
  for (auto each = kLink.globalMatch(text); each.hasNext();) {
    const auto link = each.next();
    const QString path = link.captured(1);
    if (path.isEmpty()) {
      EXPECT_TRUE(HasAnchor(page, link.captured(2))) << qPrintable(link.captured());
    }
    if (path.endsWith(".png")) {
      const QUrl url = page.source().resolved(path);
      EXPECT_FALSE(
          page.loadResource(QTextDocument::ImageResource, panel_picture).value<QImage>().isNull());
    }
  }
  Q_EMIT page.anchorClicked(QUrl("instruction-set.md"));
  EXPECT_EQ(page.source(), QUrl("qrc:/docs/instruction-set.md"));
  QTextBrowser desktop;
  QUrl shown;
  QObject::connect(&desktop, &QTextBrowser::anchorClicked, [&](const QUrl& url) { shown = url; });
  QDesktopServices::setUrlHandler("file", &desktop, "anchorClicked");
  Q_EMIT page.anchorClicked(QUrl("../examples/checking"));
  QDesktopServices::unsetUrlHandler("file");
  EXPECT_EQ(page.source(), QUrl("qrc:/docs/instruction-set.md")) << "no page";
  EXPECT_TRUE(QFileInfo::exists(shown.toLocalFile() + "/check.sh"));
  page.backward();
  EXPECT_EQ(page.cursorForPosition({40, 5}).block().text().toStdString(), "Equivalents");
  QPalette palette;
  palette.setColor(QPalette::Link, Qt::red);
  QApplication::setPalette(palette);
  QEvent change(QEvent::PaletteChange);
  QApplication::sendEvent(&page, &change);
  EXPECT_TRUE(page.toHtml().contains("#ff0000"));
  QApplication::setPalette(QPalette());
}

}  // namespace
}  // namespace quilla
