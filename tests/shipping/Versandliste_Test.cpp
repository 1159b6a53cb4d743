// The shipment list without its window: what it loads, and what its changes leave in the table.
#include "shipping/Versandliste.h"

#include "Versandmandant.h"
#include "db/Verbindung.h"
#include "shipping/Versandspalten.h"
#include "support/Dialoge_Skript.h"
#include "ui/Fortschritt.h"

namespace marklink {
namespace {

class Versandliste_Test : public test::Versand_Test {
 protected:
  QStringList Nummern() const {
    QStringList nummern;
    for (int zeile = 0; zeile < Liste.Zeilen(); ++zeile) nummern << Text(zeile, "OrderID");
    return nummern;
  }
  QString Text(int Zeile, const char *Spalte) const {
    return Liste.Zelle(Zeile, Versandspalte_finden(Spalte)).toString();
  }
  bool Setzen(int Zeile, const char *Spalte, const QVariant &Wert) {
    return Liste.Zelle_setzen(Zeile, Versandspalte_finden(Spalte), Wert);
  }
  Versandliste Liste;
};
MARKLINK_BEIDE_TYPEN(Versandliste_Test);

TEST_P(Versandliste_Test, Zeigt_was_noch_nicht_uebergeben_ist_und_im_Zeitraum_liegt) {
  Auftrag(9, QDate(2024, 12, 31));
  Auftrag(10, QDate(2024, 1, 1));
  Auftrag(11, QDate(2023, 5, 1));
  Auftrag(12, QDate(2024, 2, 2), true);
  EXPECT_EQ(Versandliste::Ladeanweisung().Text(),
            u"SELECT * FROM LogisticsEASYLOG WHERE Conveyed = 0 ORDER BY OrderID,Date"_qs);
  const struct {
    qint16 Zeitraum;
    QStringList Nummern;
  } faelle[] = {{0, {u"10"_qs, u"11"_qs, u"9"_qs}}, {1, {u"10"_qs, u"9"_qs}}, {2, {u"11"_qs}}, {40, {}}};
  for (const auto &fall : faelle) {
    Kontext.gViewablePeriod = fall.Zeitraum;
    Liste.Versandliste_laden();
    EXPECT_EQ(Nummern(), fall.Nummern) << fall.Zeitraum;
    EXPECT_FALSE(Kontext.gLaeuft);
  }
  Kontext.gViewablePeriod = 1;
  EXPECT_TRUE(Versandliste::Ladeanweisung().Text().endsWith(u" AND Conveyed = 0 ORDER BY OrderID,Date"_qs))
      << Versandliste::Ladeanweisung().Text().toStdString();
  Liste.Versandliste_laden();
  EXPECT_EQ(Text(0, "Document"), u"Rechnung"_qs);
  EXPECT_EQ(Liste.Zelle(0, Versandspalte_finden("Conveyed")), QVariant(false));
  EXPECT_EQ(Liste.Anschriften(0).InvoiceAddress, u"Rechnung 10"_qs);
  EXPECT_EQ(Liste.Anschriften(0).DeliveryAddress, u"Lieferung 10"_qs);
  EXPECT_EQ(Liste.Anschriften(7).InvoiceAddress, QString());
}

TEST_P(Versandliste_Test, Laden_zeigt_den_Fortschritt_und_laesst_sich_abbrechen) {
  test::Fortschritt_Skript fortschritt;
  for (int i = 1; i <= 3; ++i) Auftrag(i);
  fortschritt.Abbrechen_bei = 2;
  Liste.Versandliste_laden();
  EXPECT_EQ(Nummern(), (QStringList{u"1"_qs, u"2"_qs}));
  EXPECT_EQ(fortschritt.Angezeigt.front().Maximum, 3);
  EXPECT_EQ(fortschritt.Texte.value(0), u"Versandauftrag '1' wird eingelesen..."_qs);
  EXPECT_FALSE(fortschritt.Sichtbar);
}

TEST_P(Versandliste_Test, Speichern_schreibt_jede_Aenderung_in_ihre_Zeile) {
  for (int i = 1; i <= 3; ++i) Auftrag(i);
  Liste.Versandliste_laden();
  EXPECT_TRUE(Setzen(1, "POOL_EMPF_ORT", u"Köln"_qs));
  EXPECT_TRUE(Setzen(1, "Date", u"24.12.2024"_qs));
  EXPECT_FALSE(Setzen(1, "Date", u"morgen"_qs)) << "no date";
  EXPECT_FALSE(Setzen(1, "OrderID", u"3"_qs)) << "the row would be lost";
  EXPECT_TRUE(Setzen(2, "POOL_EMPF_NAME1", QString()));
  EXPECT_TRUE(Setzen(2, "Date", QString()));
  EXPECT_TRUE(Setzen(0, "POOL_EXPORTGRUNDGHL", u"Muster"_qs)) << "a column that the table lacks";
  EXPECT_TRUE(Setzen(0, "Conveyed", true));
  EXPECT_EQ(Gespeichert(2, "POOL_EMPF_ORT"), u"Dresden"_qs) << "nothing is written before";
  EXPECT_TRUE(Liste.Versandliste_speichern());
  EXPECT_EQ(Gespeichert(2, "POOL_EMPF_ORT"), u"Köln"_qs);
  EXPECT_TRUE(Gespeichert(2, "Date").startsWith(u"2024-12-24"_qs));
  EXPECT_EQ(Gespeichert(3, "POOL_EMPF_NAME1") + Gespeichert(3, "Date"), QString());
  EXPECT_EQ(Gespeichert(1, "Conveyed"), u"-1"_qs);
  for (const int nummer : {1, 2, 3}) {
    EXPECT_EQ(Gespeichert(nummer, "Positions"), u"bleibt stehen"_qs) << nummer;
    EXPECT_EQ(Gespeichert(nummer, "POOL_EMPF_GEWICHT"), u"1,500"_qs) << nummer;
  }
  EXPECT_FALSE(Liste.Geaendert());
  Liste.Versandliste_laden();
  EXPECT_EQ(Nummern(), (QStringList{u"2"_qs, u"3"_qs})) << "a marked row counts as handed over";
  Setzen(0, "POOL_EMPF_ORT", u"verworfen"_qs);
  Liste.Versandliste_laden();
  EXPECT_EQ(Text(0, "POOL_EMPF_ORT"), u"Köln"_qs);
}

TEST_P(Versandliste_Test, Speichern_laesst_stehen_was_andere_inzwischen_taten) {
  for (int i = 1; i <= 3; ++i) Auftrag(i);
  Liste.Versandliste_laden();
  for (int zeile = 0; zeile < 3; ++zeile) {
    Setzen(zeile, "POOL_EMPF_ORT", u"Köln"_qs);
    Setzen(zeile, "POOL_EMPF_PLZ", u"50667"_qs);
  }
  Ausfuehren("DELETE FROM LogisticsEASYLOG WHERE OrderID = '1'");
  Ausfuehren({"UPDATE LogisticsEASYLOG SET POOL_EMPF_ORT = 'Bonn', Conveyed = ",
              db::Zahl(int{Kontext.gSQL_True}), " WHERE OrderID = '2'"});
  EXPECT_TRUE(Liste.Versandliste_speichern());
  EXPECT_EQ(Anzahl(), 2) << "a row that was deleted stays deleted";
  EXPECT_EQ(Gespeichert(2, "POOL_EMPF_ORT"), u"Bonn"_qs);
  EXPECT_EQ(Gespeichert(2, "POOL_EMPF_PLZ"), u"50667"_qs);
  EXPECT_EQ(Gespeichert(2, "Conveyed"), u"-1"_qs) << "it must not be exported twice";
  EXPECT_EQ(Gespeichert(3, "POOL_EMPF_ORT"), u"Köln"_qs);
}

TEST_P(Versandliste_Test, Ein_fehlgeschlagener_Zugriff_loescht_nichts) {
  for (int i = 1; i <= 2; ++i) Auftrag(i);
  EXPECT_TRUE(Liste.Versandliste_speichern()) << "nothing loaded, nothing to store";
  Liste.Versandliste_laden();
  Setzen(0, "POOL_EMPF_ORT", u"Köln"_qs);
  Setzen(1, "POOL_EMPF_ORT", u"Bonn"_qs);
  int gescheitert = 0;
  for (int n = 1; n < 20; ++n) {
    db::Fehler_einspeisen(n);
    const bool gelungen = Liste.Versandliste_speichern();
    db::Fehler_einspeisen(0);
    EXPECT_EQ(Anzahl(), 2);
    EXPECT_EQ(Gespeichert(2, "POOL_EMPF_NAME1"), u"Käufer 2"_qs);
    if (gelungen) break;
    ++gescheitert;
  }
  EXPECT_GT(gescheitert, 0);
  EXPECT_EQ(Gespeichert(1, "POOL_EMPF_ORT") + Gespeichert(2, "POOL_EMPF_ORT"), u"KölnBonn"_qs)
      << "what failed is stored by the next try";
  db::Fehler_einspeisen(1);
  Liste.Versandliste_laden();
  db::Fehler_einspeisen(0);
  EXPECT_TRUE(Liste.Versandliste_speichern());
  EXPECT_EQ(Gespeichert(1, "POOL_EMPF_ORT"), u"Köln"_qs);
}

TEST_P(Versandliste_Test, Marken_und_Farben) {
  for (int i = 1; i <= 3; ++i) Auftrag(i);
  Liste.Versandliste_laden();
  EXPECT_EQ(Liste.Zeilenfarbe(0), std::nullopt);
  Liste.Teilnahmefarben_setzen(11, 22);
  EXPECT_EQ(Liste.Zeilenfarbe(0), 11);
  EXPECT_EQ(Liste.Zeilenfarbe(1), 22);
  Setzen(0, "POOL_V_TEILNAHME", u"03"_qs);
  EXPECT_EQ(Liste.Zeilenfarbe(0), std::nullopt);
  Liste.Alles_markieren();
  EXPECT_EQ(Liste.Auswahl_zaehlen(), 3);
  Setzen(1, "Conveyed", false);
  EXPECT_EQ(Liste.Auswahl_zaehlen(), 2);
  Liste.Markierung_aufheben();
  EXPECT_EQ(Liste.Auswahl_zaehlen(), 0);
}

TEST_P(Versandliste_Test, Auswahllisten_aus_der_Wertemappe) {
  const auto spalten = Versandtabelle_Spalten();
  const auto von = [&spalten](const char *Schluessel) {
    return spalten[size_t(Versandspalte_finden(Schluessel))];
  };
  ASSERT_EQ(spalten.size(), 68U);
  EXPECT_EQ(spalten[0].Titel + spalten[67].Schluessel, u"AuswahlPOOL_RECHNUNGSPOSITIONENDHL"_qs);
  using Eintraege = std::vector<QStringList>;
  EXPECT_EQ(von("POOL_V_TEILNAHME").Auswahl,
            (Eintraege{{u"01"_qs, u"Teilnahme 01"_qs}, {u"02"_qs, u"Teilnahme 02"_qs}}));
  EXPECT_EQ(von("POOL_V_PRODUKT_CN").Auswahl.size(), 3U);
  EXPECT_EQ(von("POOL_V_ZOLL_WARENART").Auswahl,
            (Eintraege{{u"0"_qs, u"Geschenk"_qs}, {u"4"_qs, u"Sonstige"_qs}}));
  EXPECT_EQ(von("POOL_EP_VORAUS").Wie, Tabellenspalte::Art::Text) << "nothing to pick: any text";
  EXPECT_EQ(Produkte_des_Verfahrens(u"53"_qs), (Eintraege{{u"5301"_qs, u"Weltpaket Premium"_qs}}));
  EXPECT_TRUE(Produkte_des_Verfahrens(u"o'k"_qs).empty());
  Kontext.gVersandkostendatei = u"/nirgendwo.xls"_qs;
  for (const Tabellenspalte &spalte : Versandtabelle_Spalten()) EXPECT_TRUE(spalte.Auswahl.empty());
}

}  // namespace
}  // namespace marklink
