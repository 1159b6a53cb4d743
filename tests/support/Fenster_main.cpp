// The main program of window tests: one QApplication, without a screen unless the caller names a platform.
#include <gtest/gtest.h>

#include <QApplication>

#include "ui/clsOberflaeche.h"

int main(int argc, char **argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication anwendung(argc, argv);
  // A test closes its last window and goes on.
  QApplication::setQuitOnLastWindowClosed(false);
  marklink::Oberflaeche_einrichten();
  const int ergebnis = RUN_ALL_TESTS();
  marklink::Oberflaeche_abbauen();
  return ergebnis;
}
