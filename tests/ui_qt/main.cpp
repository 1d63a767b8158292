// Runs the tests with a QApplication on Qt's offscreen platform.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication aplicacion{argc, argv};
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
