// Check lists, and the ports when nothing is installed behind them.
#include <gtest/gtest.h>

#include "host/Kontext.h"
#include "support/Dialoge_Skript.h"
#include "ui/Drucker.h"
#include "ui/Host_Komponenten.h"
#include "ui/Pruefliste.h"

namespace marklink {
namespace {

TEST(Pruefliste_Test, markierte_und_gewaehlte_Zeilen) {
  Pruefliste liste{{{true, {u"Offen"_qs, u"1"_qs}},
                    {false, {u"In Arbeit"_qs, u"2"_qs}},
                    {true, {u"Versendet"_qs, u"3"_qs}},
                    {true, {u"ohne Nummer"_qs}}},
                   -1};
  const auto verkettet = [&liste] { return Zeilen_verketten(liste, 1, u"'"_qs, u","_qs); };
  EXPECT_EQ(Zeilen_zaehlen(liste, true), 3);
  EXPECT_EQ(Zeilen_zaehlen(liste, false), 1);
  EXPECT_EQ(verkettet(), u"'1','3',''"_qs);
  EXPECT_EQ(Zeilen_markierte(liste, 0).join(u'|'), u"Offen|Versendet|ohne Nummer"_qs);
  for (Listenzeile &zeile : liste.Zeilen) zeile.Markiert = false;
  EXPECT_EQ(verkettet(), QString());

  Zeile_waehlen(liste, 1, u"3"_qs);
  EXPECT_EQ(liste.Gewaehlt, 2);
  Zeile_waehlen(liste, 0, u"Offen"_qs);
  EXPECT_EQ(liste.Gewaehlt, 0);
  Zeile_waehlen(liste, 1, QString());  // the row without that column has no empty cell there
  EXPECT_EQ(liste.Gewaehlt, -1);
}

TEST(Ports_Test, ohne_Installation_die_Antwort_die_am_wenigsten_aendert) {
  const auto fragen = [](Knoepfe k) { return dialoge().Meldung(u"T"_qs, {}, Symbol::Frage, k, Antwort::Ja); };
  EXPECT_EQ(fragen(Knoepfe::OK), Antwort::OK);
  EXPECT_EQ(fragen(Knoepfe::JaNein), Antwort::Nein);
  EXPECT_EQ(fragen(Knoepfe::JaNeinAbbrechen), Antwort::Abbrechen);
  EXPECT_EQ(fragen(Knoepfe::OKAbbrechen), Antwort::Abbrechen);
  EXPECT_TRUE(dialoge().Eingabe({}, {}, u"Vorgabe"_qs).isEmpty());
  EXPECT_FALSE(dialoge().Farbe(0xFF0000).has_value());
  EXPECT_FALSE(dialoge().Schirm_zeigen(u"frmMain"_qs));
  EXPECT_TRUE(drucker().Namen().isEmpty());
  const auto komponente = Host_Komponente_erzeugen(u"dta.common"_qs);
  EXPECT_FALSE(Host_Komponente_aufrufen(komponente.get(), u"Initialisierung"_qs, {}).isValid());
}

TEST(Ports_Test, Fortschritt_beginnt_ohne_alten_Abbruch) {
  Kontext.gAbbrechen = true;
  fortschritt().ProgressAnzeigen(u"stumm"_qs, 1);
  EXPECT_FALSE(Kontext.gAbbrechen);

  test::Fortschritt_Skript fenster;
  fenster.Abbrechen_bei = 2;
  Kontext.gAbbrechen = true;
  fortschritt().ProgressAnzeigen(u"Aufträge"_qs, 3, false);
  EXPECT_FALSE(Kontext.gAbbrechen);
  for (int i = 1; i <= 3 && !Kontext.gAbbrechen; ++i) fortschritt().Wert(i);
  fortschritt().Verbergen();
  ASSERT_EQ(fenster.Angezeigt.size(), 1U);
  EXPECT_FALSE(fenster.Angezeigt[0].Abbrechen_sichtbar);
  EXPECT_EQ(fenster.Werte, (std::vector<int>{1, 2}));
  EXPECT_FALSE(fenster.Sichtbar);
  Kontext.gAbbrechen = false;
}

}  // namespace
}  // namespace marklink
