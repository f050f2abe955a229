#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/window/Theme.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication application(argc, argv);
  vantrel::applyTheme(application);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
