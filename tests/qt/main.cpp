#include <gtest/gtest.h>

#include <QApplication>

#include "adapters/qt/look/Look.h"

// Without a screen unless the caller names one.
int main(int count, char** arguments) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&count, arguments);
  const QApplication application(count, arguments);
  corvane::qt::SetUpLook(corvane::qt::Scheme::Light);
  return RUN_ALL_TESTS();
}
