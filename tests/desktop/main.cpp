// One application for all tests of the face.
#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>

#include "desktop/appearance.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // The pixels of the screen are compared: they must not depend on the settings of whoever runs the tests.
  qunsetenv("QT_SCALE_FACTOR");
  qputenv("QT_QPA_PLATFORM", "xcb");
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setQuitOnLastWindowClosed(false);
  pelorium::SetAppearance(application);
  return RUN_ALL_TESTS();
}
