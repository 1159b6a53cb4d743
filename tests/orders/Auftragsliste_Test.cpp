// The order list: its statement under the two filters, its rows, marks and current row, and the status list.
#include "orders/Auftragsliste.h"

#include "db/Zeitpunkt.h"
#include "host/Kontext.h"
#include "orders/Auftragsstati.h"
#include "orders/Auswahllisten.h"
#include "orders/Bestellabruf.h"
#include "support/Dialoge_Skript.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

class Auftragsliste_Test : public test::Mandant_Test {
 protected:
  void Bestellung(const QString &Nummer, const QString &Status, const QDateTime &Datum,
                  bool Markiert = false) {
    Mandant.Zeile(u"WebshopOrdersXTC"_qs,
                  {u"OrderID"_qs, Nummer, u"Status"_qs, Status, u"Date"_qs, Datum, u"Invoice"_qs, Markiert,
                   u"Amount"_qs, 12.5, u"Customer"_qs, u"Käufer "_qs + Nummer, u"ExtendedInfo"_qs, u""_qs});
  }
  QStringList Nummern() const {
    QStringList nummern;
    for (int zeile = 0; zeile < Liste.Zeilenzahl(); ++zeile)
      nummern << Liste.Zelle(zeile, "OrderID").toString();
    return nummern;
  }
  void Status_waehlen(const QStringList &Kennungen) {
    Liste.lvwAuftragsstatus = {};
    for (const QString &id : {u"1"_qs, u"2"_qs, u"3"_qs, u"o'k"_qs})
      Liste.lvwAuftragsstatus.Zeilen.push_back({Kennungen.contains(id), {u"Text"_qs, id, u"Text"_qs}});
  }
  Auftragsliste Liste;
};
MARKLINK_BEIDE_TYPEN(Auftragsliste_Test);

TEST_P(Auftragsliste_Test, Anweisung_unter_den_Filtern) {
  const QString jahr = GetParam() == 0 ? u"[Date] BETWEEN #1/1/2024 00:00:00# AND #12/31/2024 00:00:00#"_qs
                                       : u"[Date] BETWEEN CONVERT(datetime, '2024-01-01 00:00:00', 120) AND "
                                         "CONVERT(datetime, '2024-12-31 00:00:00', 120)"_qs;
  const struct {
    QStringList Stati;
    qint16 Zeitraum;
    QString Bedingung;
  } faelle[] = {
      {{}, 0, u""_qs},
      {{u"1"_qs, u"3"_qs}, 0, u" WHERE Status IN ('1','3')"_qs},
      {{}, 1, u" WHERE "_qs + jahr},
      {{u"1"_qs, u"3"_qs}, 1, u" WHERE Status IN ('1','3') AND "_qs + jahr},
  };
  EXPECT_EQ(Liste.Ladeanweisung().Text(), u"SELECT * FROM WebshopOrdersXTC ORDER BY OrderID, Date"_qs)
      << "an empty status list is no filter";
  for (const auto &fall : faelle) {
    Status_waehlen(fall.Stati);
    Kontext.gViewablePeriod = fall.Zeitraum;
    EXPECT_EQ(Liste.Ladeanweisung().Text(),
              u"SELECT * FROM WebshopOrdersXTC"_qs + fall.Bedingung + u" ORDER BY OrderID, Date"_qs);
  }
}

TEST_P(Auftragsliste_Test, Laedt_was_die_Filter_durchlassen) {
  Bestellung(u"9"_qs, u"1"_qs, Zeitpunkt(QDate(2024, 12, 31), QTime(0, 0)));
  Bestellung(u"10"_qs, u"2"_qs, Zeitpunkt(QDate(2024, 12, 31), QTime(0, 1)));
  Bestellung(u"11"_qs, u"3"_qs, Zeitpunkt(QDate(2023, 5, 1), QTime(8, 0)));
  Bestellung(u"8"_qs, u"3"_qs, Zeitpunkt(QDate(2024, 1, 1), QTime(0, 0)));
  const struct {
    const char *Fall;
    QStringList Stati;
    qint16 Zeitraum;
    QStringList Nummern;
  } faelle[] = {
      {"text order", {}, 0, {u"10"_qs, u"11"_qs, u"8"_qs, u"9"_qs}},
      {"status", {u"1"_qs, u"3"_qs}, 0, {u"11"_qs, u"8"_qs, u"9"_qs}},
      {"a time on the last day falls outside", {}, 1, {u"8"_qs, u"9"_qs}},
      {"both", {u"3"_qs}, 1, {u"8"_qs}},
      {"custom period without dates", {}, 40, {}},
      {"no such period", {}, 99, {}},
      {"a status with an apostrophe fails the query", {u"1"_qs, u"o'k"_qs}, 0, {}},
  };
  for (const auto &fall : faelle) {
    Status_waehlen(fall.Stati);
    Kontext.gViewablePeriod = fall.Zeitraum;
    Liste.Auftragsliste_laden();
    EXPECT_EQ(Nummern(), fall.Nummern) << fall.Fall;
    EXPECT_EQ(Liste.AktuelleZeile(), fall.Nummern.isEmpty() ? -1 : 0) << fall.Fall;
    EXPECT_FALSE(Kontext.gLaeuft) << fall.Fall;
  }
}

TEST_P(Auftragsliste_Test, Zellen_halten_ihre_Art_und_Aenderungen_bleiben_hier) {
  Bestellung(u"1"_qs, u"1"_qs, Zeitpunkt(QDate(2024, 3, 5), QTime(14, 22, 11)), true);
  Bestellung(u"2"_qs, u"1"_qs, QDateTime());
  Liste.Auftragsliste_laden();
  ASSERT_EQ(Liste.Zeilenzahl(), 2);
  EXPECT_EQ(Liste.Zelle(0, "Amount"), QVariant(12.5));
  EXPECT_EQ(Liste.Zelle(0, "Date").toDateTime(), Zeitpunkt(QDate(2024, 3, 5), QTime(14, 22, 11)));
  EXPECT_TRUE(Liste.Zelle(1, "Date").isNull());
  EXPECT_EQ(Liste.Zelle(0, "Customer"), QVariant(u"Käufer 1"_qs));
  EXPECT_EQ(Liste.Zelle(0, "Invoice"), QVariant(true));
  EXPECT_TRUE(Liste.Zelle(0, "PaymentPractice").isNull());
  for (const auto &[zeile, spalte] :
       {std::pair{2, "OrderID"}, std::pair{-1, "OrderID"}, std::pair{0, "Positions"}})
    EXPECT_FALSE(Liste.Zelle(zeile, spalte).isValid()) << zeile << spalte;

  Liste.Zelle_setzen(0, "Payment", u"Vorkasse"_qs);
  Liste.Zelle_setzen(0, "PaymentPractice", u"30 Tage ×"_qs);
  Liste.Zelle_setzen(7, "Payment", u"x"_qs);
  Liste.Zelle_setzen(0, "Positions", u"x"_qs);
  EXPECT_EQ(Liste.Zelle(0, "Payment"), QVariant(u"Vorkasse"_qs));
  EXPECT_EQ(Liste.Zelle(0, "PaymentPractice"), QVariant(u"30 Tage ×"_qs));
  EXPECT_NE(Liste.Zelle(1, "Payment"), QVariant(u"Vorkasse"_qs))
      << "rows that share a text do not share an edit";
  Liste.Auftragsliste_laden();
  EXPECT_NE(Liste.Zelle(0, "Payment"), QVariant(u"Vorkasse"_qs));
}

TEST_P(Auftragsliste_Test, Marken_leben_bis_zum_naechsten_Laden) {
  for (const auto &[nummer, markiert] :
       {std::pair{u"1"_qs, true}, std::pair{u"2"_qs, false}, std::pair{u"3"_qs, false}})
    Bestellung(nummer, u"1"_qs, {}, markiert);
  EXPECT_EQ(Liste.Auswahl_zaehlen(), 0);
  Liste.Auftragsliste_laden();
  EXPECT_EQ(Liste.Auswahl_zaehlen(), 1);
  EXPECT_TRUE(Liste.Markiert(0));
  Liste.Markieren(2, true);
  Liste.Markieren(9, true);
  EXPECT_EQ(Liste.Auswahl_zaehlen(), 2);
  Liste.Alles_markieren();
  EXPECT_EQ(Liste.Auswahl_zaehlen(), 3);
  Liste.Markierung_aufheben();
  EXPECT_EQ(Liste.Auswahl_zaehlen(), 0);
  Liste.Auftragsliste_laden();
  EXPECT_EQ(Liste.Auswahl_zaehlen(), 1);
}

TEST_P(Auftragsliste_Test, Abbruch_beim_Laden_zeigt_was_da_ist) {
  test::Fortschritt_Skript fortschritt;
  for (const QString &nummer : {u"1"_qs, u"2"_qs, u"3"_qs}) Bestellung(nummer, u"1"_qs, {});
  fortschritt.Abbrechen_bei = 2;
  Liste.Auftragsliste_laden();
  EXPECT_EQ(Nummern(), (QStringList{u"1"_qs, u"2"_qs}));
  EXPECT_EQ(fortschritt.Angezeigt.front().Maximum, 3);
  EXPECT_EQ(fortschritt.Texte.value(0), u"Bestellung '1' wird eingelesen..."_qs);
}

TEST_P(Auftragsliste_Test, Statusliste) {
  Pruefliste stati;
  EXPECT_EQ(Auftragsstati_initialisieren(stati), QString());
  EXPECT_TRUE(Auftragsstati_farben(u"1;ohne Farbe;|2;zerbrochen;rot;255"_qs).empty());
  const struct {
    QString ID, Text;
    int Farbe;
  } saetze[] = {{u"2"_qs, u"in Arbeit"_qs, 255}, {u"1"_qs, u"offen"_qs, 16777215}};
  for (const auto &satz : saetze)
    Mandant.Zeile(u"WebshopOrderStatusXTC"_qs,
                  {u"WebshopID"_qs, satz.ID, u"Description"_qs, satz.Text, u"Colour"_qs, satz.Farbe});
  EXPECT_EQ(Auftragsstati_initialisieren(stati), u"1;offen;16777215|2;in Arbeit;255"_qs);
  EXPECT_EQ(gAuftragsstati_Liste, u"1;offen;16777215|2;in Arbeit;255"_qs);
  Auftragsstati_initialisieren(stati);
  ASSERT_EQ(stati.Zeilen.size(), 2U) << "a second initialisation adds nothing";
  EXPECT_EQ(stati.Zeilen[0].Spalten.mid(1), (QStringList{u"1"_qs, u"offen"_qs}));
  const auto farben = Auftragsstati_farben(gAuftragsstati_Liste);
  ASSERT_EQ(farben.size(), 2U);
  EXPECT_EQ(farben[1].WebshopID, u"2"_qs);
  EXPECT_EQ(farben[1].Colour, 255);

  EXPECT_EQ(Bestellparameter(stati), QString());
  stati.Zeilen[0].Markiert = stati.Zeilen[1].Markiert = true;
  EXPECT_EQ(Bestellparameter(stati), u"&order_status='1','2'"_qs);
}

TEST_P(Auftragsliste_Test, Auswahllisten_bieten_nur_aktive_an) {
  for (const auto &[name, aktiv] :
       {std::pair{u"Post"_qs, true}, std::pair{u"Bote"_qs, true}, std::pair{u"Kutsche"_qs, false}})
    Mandant.Zeile(u"ForwardingCharges"_qs, {u"Description"_qs, name, u"Costs"_qs, 4.9, u"Active"_qs, aktiv});
  Mandant.Zeile(u"MethodPayments"_qs, {u"Description"_qs, u"Wechsel"_qs, u"Active"_qs, false});
  Mandant.Zeile(u"PaymentPractices"_qs, {u"Description"_qs, u"30 Tage"_qs, u"Active"_qs, true});
  const Auswahllisten listen = Auswahllisten_laden();
  ASSERT_EQ(listen.jgVersandart.size(), 2U);
  EXPECT_EQ(listen.jgVersandart[0].Description, u"Bote"_qs);
  EXPECT_DOUBLE_EQ(listen.jgVersandart[1].Costs, 4.9);
  EXPECT_EQ(listen.jgZahlungsart, QStringList());
  EXPECT_EQ(listen.jgZahlungsbedingungen, QStringList{u"30 Tage"_qs});
  EXPECT_EQ(listen.Shipping.size(), 3);
  EXPECT_EQ(listen.Payment, QStringList{u"Wechsel"_qs});
  EXPECT_EQ(listen.PaymentPractice, QStringList{u"30 Tage"_qs});
}

}  // namespace
}  // namespace marklink
