#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/end_signals.h"
#include "desktop/view/dress.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  evac::desktop::EndSignals::hold_back();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  evac::desktop::dress_application();
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
