// Window tests need no display: unless told otherwise they run on a monitor of 1024x768 that nobody sees.

#include <gtest/gtest.h>

#include <QApplication>

int main(int count, char** values) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" FENVALE_SOURCE_DIR "/tests/gui/janelas/tela.json");
  testing::InitGoogleTest(&count, values);
  const QApplication application(count, values);
  return RUN_ALL_TESTS();
}
