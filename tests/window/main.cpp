// The window tests run without a display.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
