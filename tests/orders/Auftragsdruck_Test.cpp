// The printed lists of marked orders: which rows they take, and what their fields say.
#include "orders/Auftragsdruck.h"

#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "support/Dialoge_Skript.h"
#include "support/Drucker_Skript.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

using Art = Listenbericht::Art;

class Auftragsdruck_Test : public test::Mandant_Test {
 protected:
  Auftragsdruck_Test() {
    Kontext.gViewablePeriod = 0;
    Bestellung("1", Zeitpunkt(QDate(2024, 6, 4), QTime(9, 0)), 1234.5, "Vorkasse");
    Bestellung("2", Zeitpunkt(QDate(2023, 12, 31), QTime(23, 59)), QVariant(), "Lastschrift");
    Bestellung("3", Zeitpunkt(QDate(2024, 6, 3)), 0.005, "Vorkasse");
    Bestellung("4", QVariant(), -2, "");
    Liste.Auftragsliste_laden();
    Berichtsfenster_setzen({{},
                            [this](Report &r) {
                              for (const char *name : {"txtTitel", "txtZeitraum", "txtAuswertungsdatum"})
                                Gezeigt
                                    << Bericht(r.Beschreibung()).Element_finden(QLatin1String(name))->Inhalt;
                              Gezeigt << r.Beschreibung().Dokumenttitel;
                            },
                            {}});
  }
  ~Auftragsdruck_Test() override { Berichtsfenster_setzen({}); }
  void Bestellung(const char *Nummer, const QVariant &Tag, const QVariant &Wert, const char *Zahlungsart) {
    Mandant.Zeile(u"WebshopOrdersXTC"_qs,
                  {u"OrderID"_qs, QLatin1String(Nummer), u"Date"_qs, Tag, u"Amount"_qs, Wert, u"Payment"_qs,
                   QLatin1String(Zahlungsart), u"Customer"_qs, u"Käufer "_qs + QLatin1String(Nummer),
                   u"Email"_qs, u"k@example.de"_qs, u"Shipping"_qs, u"Paket"_qs, u"ExtendedInfo"_qs,
                   u"Konto"_qs, u"Notes"_qs, u"Eile"_qs});
  }
  /// The list's rows, fields parted by "|".
  QStringList Zeilen(Art Was) {
    auto daten = std::make_shared<Listenbericht>(Was);
    daten->mSQL = Listenanweisung(Was, Auswahl_lesen(Liste, false));
    const Report report = Listenbericht::Report_Initialisieren(daten);
    QStringList zeilen;
    for (int i = 0; i < daten->Zeilen(); ++i) {
      QStringList felder;
      for (int f = 0; f < int(report.Beschreibung().Felder.size()); ++f) felder << daten->Feld(i, f);
      zeilen << felder.join(u'|');
    }
    return zeilen;
  }
  Auftragsliste Liste;
  test::Dialoge_Skript Dialoge;
  test::Drucker_Skript Drucker{{u"Laser"_qs}};
  QStringList Gezeigt;
};
MARKLINK_BEIDE_TYPEN(Auftragsdruck_Test);

TEST_P(Auftragsdruck_Test, Ohne_Auswahl_ein_Hinweis) {
  Dialoge.Erwarten(u"Hinweis"_qs);
  EXPECT_EQ(Auswahl_lesen(Liste, true), QStringList());
  EXPECT_EQ(Auswahl_lesen(Liste, false), QStringList());
  for (const auto befehl :
       {&Bestellliste_drucken, &Transaktionsliste_drucken, &Transaktionsliste_exportieren}) {
    Dialoge.Erwarten(u"Hinweis"_qs);
    befehl(Liste);
  }
  const QString keine = u"Es wurden keine Aufträge ausgewählt. "_qs;
  ASSERT_EQ(Dialoge.Gezeigt.size(), 4U);
  EXPECT_EQ(Dialoge.Gezeigt[0].Zeilen,
            (QStringList{keine,
                         u"Markieren Sie bitte alle Aufträge, für die Sie ein Beleg erstellen möchten."_qs}));
  for (std::size_t i = 1; i < 4; ++i)
    EXPECT_EQ(Dialoge.Gezeigt[i].Zeilen,
              (QStringList{
                  keine,
                  u"Markieren Sie bitte alle Aufträge, die Sie in die Bestellliste übernehmen möchten."_qs}));
  EXPECT_TRUE(Gezeigt.isEmpty());
}

TEST_P(Auftragsdruck_Test, Die_Zeilen_stehen_nach_Tag_oder_Zahlungsart) {
  Liste.Alles_markieren();
  EXPECT_EQ(Zeilen(Art::Bestellliste),
            (QStringList{
                u" ()|4|Paket||Käufer 4|k@example.de|-2,00||Konto|Eile"_qs,
                u"Sonntag (31.12.2023)|2|Paket|31.12.2023|Käufer 2|k@example.de||Lastschrift|Konto|Eile"_qs,
                u"Montag (03.06.2024)|3|Paket|03.06.2024|Käufer 3|k@example.de|0,01|Vorkasse|Konto|Eile"_qs,
                u"Dienstag (04.06.2024)|1|Paket|04.06.2024|Käufer 1|k@example.de|1.234,50|Vorkasse|Konto|"
                u"Eile"_qs}));
  Liste.Markieren(3, false);
  const QStringList transaktionen = Zeilen(Art::Transaktionsliste);
  ASSERT_EQ(transaktionen.size(), 3);
  EXPECT_EQ(transaktionen[0], u"Lastschrift|2||31.12.2023|Käufer 2||||Konto|"_qs);
  EXPECT_TRUE(transaktionen[1].startsWith(u"Vorkasse|"_qs) && transaktionen[2].startsWith(u"Vorkasse|"_qs));
}

TEST_P(Auftragsdruck_Test, Der_Zeitraum_schraenkt_ein_und_steht_im_Kopf) {
  Liste.Alles_markieren();
  Bestellliste_drucken(Liste);
  EXPECT_EQ(Gezeigt, (QStringList{u"Bestellliste"_qs, u" - "_qs, u"Stand: Samstag, 15. Juni 2024"_qs,
                                  u"Tennwerk Varda Bestellliste"_qs}));
  EXPECT_EQ(Listenanweisung(Art::Bestellliste, {u"1"_qs, u"2"_qs}).Text(),
            u"SELECT * FROM WebshopOrdersXTC WHERE OrderID IN ('1','2') ORDER BY Date ASC"_qs);
  Kontext.gViewablePeriod = 3;  // this month
  Gezeigt.clear();
  Transaktionsliste_drucken(Liste);
  EXPECT_EQ(Gezeigt,
            (QStringList{u"Transaktionsliste"_qs, u"01.06.2024 - 30.06.2024"_qs,
                         u"Stand: Samstag, 15. Juni 2024"_qs, u"Tennwerk Varda Transaktionsliste"_qs}));
  EXPECT_EQ(Zeilen(Art::Bestellliste).size(), 2) << "orders 3 and 1";
  const QString sql = Listenanweisung(Art::Transaktionsliste, {u"1"_qs}).Text();
  EXPECT_TRUE(sql.contains(GetParam() == 0
                               ? u"[Date] BETWEEN #6/1/2024 00:00:00# AND "_qs
                               : u"[Date] BETWEEN CONVERT(datetime, '2024-06-01 00:00:00', 120)"_qs));
  EXPECT_TRUE(sql.endsWith(u" AND OrderID IN ('1') ORDER BY Payment ASC"_qs)) << sql.toStdString();
}

TEST_P(Auftragsdruck_Test, Nummern_vieler_Bestellungen_und_eine_mit_Apostroph) {
  QStringList viele;
  for (int i = 0; i < 20'000; ++i) viele << QString::number(i);
  EXPECT_EQ(Abfragen(Listenanweisung(Art::Bestellliste, viele)).RecordCount(), 4);
  EXPECT_EQ(Abfragen(Listenanweisung(Art::Bestellliste, {u"1"_qs, u"x' OR '1'='1"_qs})).RecordCount(), 0);
}

TEST_P(Auftragsdruck_Test, Der_Dialog_zum_Speichern_und_sein_Abbruch) {
  Liste.Alles_markieren();
  Kontext.gDocumentPath = Mandant.Ordner();
  Dialoge.Erwarten_Datei(test::Dialoge_Skript::Art::Speichern, QString());
  Transaktionsliste_exportieren(Liste);
  ASSERT_EQ(Dialoge.Gezeigt.size(), 1U);
  EXPECT_EQ(Dialoge.Gezeigt[0].Titel, u"Speichern unter"_qs);
  EXPECT_EQ(Dialoge.Gezeigt[0].Vorbelegung, Mandant.Ordner());
  EXPECT_EQ(
      Dialoge.Gezeigt[0].Zeilen.value(0),
      u"Microsoft Excel |*.xls|Adobe Acrobat Reader (*.pdf)|*.pdf|RTF-Format |*.rtf|HTM |*.htm|Text |*.txt"_qs);
}

}  // namespace
}  // namespace marklink
