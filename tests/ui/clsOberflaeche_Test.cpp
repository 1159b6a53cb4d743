// The ports of a host that brings windows of its own.
#include "ui/clsOberflaeche.h"

#include <gtest/gtest.h>

#include "support/Dialoge_Skript.h"

namespace marklink {
namespace {

TEST(clsOberflaeche_Test, laesst_dem_Host_was_ihm_gehoert) {
  const QLocale sprache;
  Oberflaeche_abbauen();  // the test program's
  QLocale::setDefault(QLocale(QLocale::French));
  {
    const test::Fortschritt_Skript vorher;
    Oberflaeche_einrichten();
    EXPECT_EQ(&fortschritt(), &vorher);
    EXPECT_TRUE(Dialoge_gesetzt());
    EXPECT_EQ(QLocale().language(), QLocale::German);
    const test::Dialoge_Skript inzwischen;
    Oberflaeche_abbauen();
    EXPECT_EQ(&fortschritt(), &vorher);
    EXPECT_EQ(&dialoge(), &inzwischen);
    EXPECT_EQ(QLocale().language(), QLocale::French);
  }
  Oberflaeche_einrichten();
  Oberflaeche_abbauen();
  EXPECT_FALSE(Dialoge_gesetzt() || Fortschritt_gesetzt()) << "its own go";
  QLocale::setDefault(sprache);
  Oberflaeche_einrichten();
}

}  // namespace
}  // namespace marklink
