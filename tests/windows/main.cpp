#include <QApplication>

#include "app/desktop.h"

/// The widgets' tests stand on a real application, offscreen.
int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  tallymere::Prepare_Application(app);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
