// Paper: what a run puts into a PDF file, and how a sheet fills paper of any size.
#include <gtest/gtest.h>

#include <QBitmap>
#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageLayout>
#include <QPainter>
#include <QPrinterInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <sstream>
#include <string>
#include <vector>

#include "panel/quilla.h"
#include "print/page_layouts.h"
#include "robot/scripted_outside.h"
#include "window/panel_fixture.h"
#include "window/qt_printer.h"
#include "window/sheet.h"
#include "window/when_open.h"

namespace quilla {
namespace {

/// The whole program without windows; its printer is the desktop's.
class PrintTest : public testing::Test {
 protected:
  static constexpr int kLastRow = 40;
  static constexpr int kStrings = 121;

  void SetUp() override {
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "it would print";
    quilla_.Start();
    outside_.clock.PassAll();
    Session& session = quilla_.panel()->session();
    session.Table1.SetRows(kLastRow + 2);
    session.StringTable.SetRows(kLastRow + 2);
    for (int row = 1; row <= kLastRow; ++row) {
      session.Table1.SetTextMatrix(row, kMnemonicColumn, "LXI  SP,  table" + std::to_string(row));
      session.Table1.SetTextMatrix(row, kOpcodeColumn, "31   XX   XX");
      session.Table1.SetTextMatrix(row, kCommentColumn, std::to_string(row) + " \xC3\xA9");
    }
    for (int i = 1; i <= kStrings; ++i) {
      session.XXCombo.Add("v" + std::to_string(i));
      session.XXEqtList.Add("XX");
    }
  }

  Session& session() { return quilla_.panel()->session(); }
  QString PathOf(const QString& name) { return QDir(folder_.path()).filePath(name); }
  static void ChooseFile(QFileDialog& dialog, const QString& path) {
    dialog.findChild<QLineEdit*>()->setText(path);
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
  }
  void ClickPrint() {
    outside_.boxes.Queue(BoxAnswer::kOk);
    session().menu.PrintFile.Choose();
  }

  /// The text of each page, its blanks told as one; empty without the tool that reads it.
  static QStringList PagesOf(const QString& path) {
    QProcess reader;
    reader.start("pdftotext", {"-layout", path, "-"});
    if (!reader.waitForFinished()) return {};
    QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).split('\f');
    pages.removeLast();
    for (QString& page : pages) page = page.simplified();
    return pages;
  }

  const QTemporaryDir folder_;
  std::ostringstream transcript_;
  robot::ScriptedOutside outside_{transcript_};
  QtPrinter printer_;
  Outside ports_{outside_.boxes, outside_.file_dialogs, outside_.port,   outside_.clock,
                 printer_,       outside_.event_loop,   outside_.storage};
  Quilla quilla_{ports_};
};

TEST_F(PrintTest, ARunIsOneDocumentWithEveryRowAtItsPage) {
  const std::string wide(70, 'w');
  session().Table1.SetTextMatrix(5, kCommentColumn, wide);
  session().Table1.SetTextMatrix(6, kCommentColumn, wide + wide + wide + wide);
  WhenOpen<QFileDialog>([this](QFileDialog& dialog) {
    EXPECT_EQ(QFileInfo(dialog.selectedFiles().at(0)).fileName(), "Pgm1.pdf");
    EXPECT_EQ(dialog.findChild<QLineEdit*>()->selectedText(), "Pgm1");
    ChooseFile(dialog, PathOf("run"));
  });
  ClickPrint();
  outside_.clock.PassAll();
  ASSERT_TRUE(QFileInfo::exists(PathOf("run.pdf"))) << "the ending is added";
  const QStringList pages = PagesOf(PathOf("run.pdf"));
  if (pages.isEmpty()) GTEST_SKIP() << "pdftotext is missing";
  ASSERT_EQ(pages.size(), 4);
  for (int page = 0; page < 4; ++page) {
    EXPECT_TRUE(pages[page].contains("BRELVANOR COMPUTERS PVT LTD"));
    EXPECT_TRUE(pages[page].contains(QString("Pgm1.baf Page: %1 of 4").arg(page + 1)));
  }
  EXPECT_TRUE(pages[0].contains("Label Addr Mnemonics Opcode Comments Origin 8000"));
  for (int row = 7; row <= kLastRow; ++row) {
    const QString text = QStringLiteral(u"%1 LXI SP, table%2 31 XX XX %2 \u00E9");
    const QString address = QString::number(0x8000 + 3 * (row - 1), 16).toUpper();
    EXPECT_TRUE(pages[row < kRowsOfPage ? 0 : 1].contains(text.arg(address).arg(row))) << row;
  }
  EXPECT_TRUE(pages[0].contains(QString(70, 'w') + " 800F")) << "drawn narrower";
  EXPECT_TRUE(pages[0].contains(QStringLiteral(u"www\u2026 8012"))) << "cut short";
  EXPECT_TRUE(pages[2].contains("String Equivalent v1 XX v2 XX v3 XX v4 XX v5 XX"));
  EXPECT_TRUE(pages[3].endsWith("v121 XX"));
}

TEST_F(PrintTest, APlaceThatCannotBeWrittenIsToldOrEndsTheRun) {
  const QString folder = PathOf("gone");
  WhenOpen<QFileDialog>([&](QFileDialog& dialog) {
    WhenOpen<QMessageBox>([&](QMessageBox& box) {
      EXPECT_EQ(box.text(), "Unable to save file.");
      box.accept();
      ASSERT_TRUE(QDir().mkdir(folder));
      WhenOpen<QFileDialog>([&](QFileDialog& again) { ChooseFile(again, folder + "/run.pdf"); });
    });
    ChooseFile(dialog, folder + "/run.pdf");
  });
  ClickPrint();
  EXPECT_FALSE(session().ProgrammingPanel.enabled());
  EXPECT_TRUE(QDir(folder).isEmpty()) << "nothing is there before the first sheet";
  ASSERT_TRUE(QDir().rmdir(folder));
  outside_.clock.PassAll();
  EXPECT_TRUE(session().ProgrammingPanel.enabled());
  EXPECT_EQ(session().ProgrammingPanel.pointer(), FormPointer::kNormal);
}

TEST(SheetTest, FillsPaperOfAnySizeAndCutsNothingOff) {
  constexpr int kDpi = 100;
  constexpr QMarginsF kMargins(36, 36, 36, 36);
  PrintPanel listing;
  for (Label* label : {&listing.NameLabel, &listing.CommentLabel}) {
    label->set_caption(std::string(200, 'W'));
  }
  for (const auto& [size, orientation] : {std::pair(QPageSize::A4, QPageLayout::Portrait),
                                          {QPageSize::A4, QPageLayout::Landscape},
                                          {QPageSize::A5, QPageLayout::Portrait}}) {
    const QPageLayout paper(QPageSize(size), orientation, kMargins);
    const QRect area = paper.paintRectPixels(kDpi);
    QImage image(paper.fullRectPixels(kDpi).size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintSheet(painter, area, listing.form);
    painter.end();
    const QRect ink = QRegion(QBitmap::fromImage(image)).boundingRect();
    EXPECT_TRUE(area.adjusted(-1, -1, 1, 1).contains(ink));
    EXPECT_GE(ink.width(), area.width() - 2);
    EXPECT_GT(ink.height(), 0.6 * area.height());
  }
}

TEST_F(PanelTest, ARunIsBusyAndTakesNoInput) {
  outside_.boxes.Queue(BoxAnswer::kOk);
  Play("Ctrl+P");
  EXPECT_FALSE(window().isEnabled());
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  const QPalette tip = Find("TipsLabel").palette();
  EXPECT_EQ(tip.color(QPalette::Disabled, QPalette::WindowText),
            tip.color(QPalette::Active, QPalette::WindowText));
  QTest::keyClick(&window(), Qt::Key_P, Qt::ControlModifier);
  const std::string transcript = transcript_.str();
  EXPECT_EQ(transcript.find("box "), transcript.rfind("box ")) << "no second run";
  outside_.clock.PassAll();
  EXPECT_TRUE(window().isEnabled());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace quilla
