// The public class as a host sees it.
#include "marklink/common.h"

#include <gtest/gtest.h>

#include "support/Dialoge_Skript.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

class common_Test : public test::Mandant_Test {
 protected:
  bool Oeffnen() { return Objekt->Initialisierung(QStringLiteral("Test"), QStringLiteral("Chef")); }
  std::unique_ptr<common, decltype(&marklink_common_freigeben)> Objekt{marklink_common_erzeugen(),
                                                                       &marklink_common_freigeben};
  test::Dialoge_Skript Skript;
};
MARKLINK_BEIDE_TYPEN(common_Test);

TEST_P(common_Test, oeffnet_einen_eingerichteten_Mandanten_ohne_Frage) {
  EXPECT_EQ(Objekt->Message_Info(), QStringLiteral("Schnittstelle für Marklink ab Version 1.0.8"));
  for (const char *wert : {"", "0", "11"}) {
    Mandant.Einstellen("Marklink", "wizard", QLatin1String(wert));
    EXPECT_TRUE(Oeffnen());
  }
  Mandant.Einstellen("Marklink", "wizard", QStringLiteral("1"));
  Skript.Erwarten_Schirm(QStringLiteral("frmWizard"));
  EXPECT_TRUE(Oeffnen());
}

TEST_P(common_Test, ohne_Projekt_kommen_erst_die_Einstellungen) {
  Mandant.Einstellen("Marklink", "project", QString());
  Mandant.Einstellen("Marklink", "wizard", QStringLiteral("1"));
  Skript.Erwarten(QStringLiteral("Hinweis"));
  Skript.Erwarten_Schirm(QStringLiteral("frmEinstellungen"));
  Skript.Erwarten(QStringLiteral("Hinweis"));
  EXPECT_FALSE(Oeffnen());
  ASSERT_EQ(Skript.Gezeigt.size(), 3U);
  EXPECT_EQ(Skript.Gezeigt[0].Zeilen,
            QStringList{QStringLiteral("Nehmen Sie zunächst bitte die Einstellungen für Marklink vor.")});
  EXPECT_EQ(Skript.Gezeigt[0].Bild, Symbol::Information);
  EXPECT_EQ(Skript.Gezeigt[2].Zeilen,
            (QStringList{QStringLiteral("Sie haben leider kein Projekt für Marklink definiert."),
                         QStringLiteral("Die Auftragsverwaltung kann nicht geöffnet werden.")}));
  EXPECT_EQ(Skript.Gezeigt[2].Bild, Symbol::Warnung);
}

TEST_P(common_Test, unfertige_Abgleiche_melden_sich_als_gescheitert) {
  ASSERT_TRUE(Oeffnen());
  Skript.Erwarten(QStringLiteral("Fehler"));
  Objekt->Artikel_synchronisieren_varda();
  EXPECT_EQ(Skript.Gezeigt.back().Zeilen,
            (QStringList{QStringLiteral("Beim Synchronisieren ist ein Fehler aufgetreten."),
                         QStringLiteral("Die Artikel konnten nicht erzeugt bzw. aktualisiert werden.")}));
  QString werte = QStringLiteral("1|2|3");
  EXPECT_FALSE(Objekt->Show_Bestandswerte(QStringLiteral("5"), werte));
  EXPECT_EQ(werte, QStringLiteral("1|2|3"));
}

}  // namespace
}  // namespace marklink
