// The public class as a host sees it.
#include "marklink/common.h"

#include <gtest/gtest.h>

#include "support/Dialoge_Skript.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

class common_Test : public test::Mandant_Test {
 protected:
  bool Oeffnen() { return Objekt->Initialisierung(u"Test"_qs, u"Chef"_qs); }
  std::unique_ptr<common, decltype(&marklink_common_freigeben)> Objekt{marklink_common_erzeugen(),
                                                                       &marklink_common_freigeben};
  test::Dialoge_Skript Skript;
};
MARKLINK_BEIDE_TYPEN(common_Test);

TEST_P(common_Test, oeffnet_einen_eingerichteten_Mandanten_ohne_Frage) {
  EXPECT_EQ(Objekt->Message_Info(), u"Schnittstelle für Marklink ab Version 1.0.8"_qs);
  for (const char *wert : {"", "0", "11"}) {
    Mandant.Einstellen("Marklink", "wizard", QLatin1String(wert));
    EXPECT_TRUE(Oeffnen());
  }
  Mandant.Einstellen("Marklink", "wizard", u"1"_qs);
  Skript.Erwarten_Schirm(u"frmWizard"_qs);
  EXPECT_TRUE(Oeffnen());
}

TEST_P(common_Test, ohne_Projekt_kommen_erst_die_Einstellungen) {
  Mandant.Einstellen("Marklink", "project", QString());
  Mandant.Einstellen("Marklink", "wizard", u"1"_qs);
  Skript.Erwarten(u"Hinweis"_qs);
  Skript.Erwarten_Schirm(u"frmEinstellungen"_qs);
  Skript.Erwarten(u"Hinweis"_qs);
  EXPECT_FALSE(Oeffnen());
  ASSERT_EQ(Skript.Gezeigt.size(), 3U);
  EXPECT_EQ(Skript.Gezeigt[0].Zeilen,
            QStringList{u"Nehmen Sie zunächst bitte die Einstellungen für Marklink vor."_qs});
  EXPECT_EQ(Skript.Gezeigt[0].Bild, Symbol::Information);
  EXPECT_EQ(Skript.Gezeigt[2].Zeilen,
            (QStringList{u"Sie haben leider kein Projekt für Marklink definiert."_qs,
                         u"Die Auftragsverwaltung kann nicht geöffnet werden."_qs}));
  EXPECT_EQ(Skript.Gezeigt[2].Bild, Symbol::Warnung);
}

TEST_P(common_Test, unfertige_Abgleiche_melden_sich_als_gescheitert) {
  ASSERT_TRUE(Oeffnen());
  Skript.Erwarten(u"Fehler"_qs);
  Objekt->Artikel_synchronisieren_varda();
  EXPECT_EQ(Skript.Gezeigt.back().Zeilen,
            (QStringList{u"Beim Synchronisieren ist ein Fehler aufgetreten."_qs,
                         u"Die Artikel konnten nicht erzeugt bzw. aktualisiert werden."_qs}));
  QString werte = u"1|2|3"_qs;
  EXPECT_FALSE(Objekt->Show_Bestandswerte(u"5"_qs, werte));
  EXPECT_EQ(werte, u"1|2|3"_qs);
}

}  // namespace
}  // namespace marklink
