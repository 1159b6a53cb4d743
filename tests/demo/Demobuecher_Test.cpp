// The demo client's books reach every rule for prices, stock and open items, and hold what the rules say.
#include <set>

#include "demo/Demomandant.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "rules/Belegsumme.h"
#include "rules/Kunden.h"
#include "rules/Lager.h"
#include "rules/Preisfindung.h"
#include "rules/Zahlungsverkehr.h"
#include "rules/Zuteilungsliste.h"
#include "stammdaten/Stammdaten.h"
#include "support/Dialoge_Skript.h"
#include "support/Testmandant.h"

namespace marklink::demo {
namespace {

QString Q(const char *Text) { return QString::fromUtf8(Text); }

class Demobuecher_Test : public test::Mandant_Test {
 protected:
  Demobuecher_Test() {
    for (const app::Stammtabelle &T : app::Stammdaten()) {
      if (T.Tabelle == QLatin1String("Employees")) continue;  // there already
      db::Recordset Satz = Abfragen({"SELECT * FROM ", db::Name{T.Tabelle}});
      for (const QVariantList &Zeile : T.Zeilen) {
        Satz.AddNew();
        for (qsizetype i = 0; i < T.Spalten.size(); ++i) Satz.SetValue(T.Spalten[i], Zeile[i]);
        Satz.Update();
      }
      EXPECT_TRUE(Satz.UpdateBatch()) << T.Tabelle.toStdString();
    }
    EXPECT_TRUE(Demomandant_schreiben(Kontext.gConnectionString, Kontext.gHeute));
  }
  static db::Recordset Rechnungen() { return Abfragen("SELECT * FROM Invoice ORDER BY InvoiceNumber"); }
};
MARKLINK_BEIDE_TYPEN(Demobuecher_Test);

TEST_P(Demobuecher_Test, Jede_Preisquelle_ist_erreichbar) {
  const struct {
    const char *Artikel, *Kunde;
    double Menge;
    Preisquelle Quelle;
    double Netto;
    int Auslesung = 0;
  } Faelle[] = {
      {"ST1020", "K30001", 500, Preisquelle::Kundenpreisliste, 2.55},
      {"AK1070", "K30006", 1, Preisquelle::Kundenpreisliste, 10.50},
      {"ST1010", "K30001", 9, Preisquelle::Kundengruppe, 3.20},
      {"ST1010", "K30001", 10, Preisquelle::Gruppenstaffel, 3.10},
      {"ST1010", "K30003", 1, Preisquelle::Artikel, 4.00},
      {"ST1010", "K30003", 199, Preisquelle::Staffel, 3.30},
      {"AK1020", "K30006", 1, Preisquelle::Artikel, 6.00},
      {"AK1080", "K30007", 5, Preisquelle::Sonderpreis, 18.00},
      {"AK1080", "K30001", 5, Preisquelle::Staffel, 15.00},
      {"SL1010", "K30003", 1, Preisquelle::Artikel, 71.99, 2},
      {"SL1020", "K30006", 1, Preisquelle::Sonderpreis, 43.72, 2},
      {"XX9999", "K30006", 1, Preisquelle::Keine, 0},
  };
  for (const auto &F : Faelle) {
    Preis P;
    EXPECT_EQ(Preis_ermitteln(P, Q(F.Artikel), Q(F.Kunde), F.Menge, Stammdaten::Lesen, F.Auslesung), F.Quelle)
        << F.Artikel << " " << F.Kunde << " " << F.Menge;
    EXPECT_NEAR(P.Netto, F.Netto, 1e-9) << F.Artikel << " " << F.Kunde << " " << F.Menge;
  }
}

TEST_P(Demobuecher_Test, Kunden_aller_Steuerarten_und_Gruppen) {
  std::set<int> Steuerarten;
  std::set<QString> Gruppen, Namen;
  for (db::Recordset K = Abfragen("SELECT * FROM Contacts"); !K.IsEOF(); K.MoveNext()) {
    Steuerarten.insert(int(K.Number(Q("TaxCalculation"))));
    Gruppen.insert(K.Text(Q("CustomerType")));
    EXPECT_TRUE(Namen.insert(K.Text(Q("Matchcode"))).second) << K.Text(Q("Matchcode")).toStdString();
    const QString Nummer = K.Text(Q("CustomerNumber")), Land = K.Text(Q("Country"));
    if (Nummer == QLatin1String("K30004")) {
      EXPECT_TRUE(Kunden_Feld(Nummer, Kundenfeld::Matchcode).isNull()) << "a country that nobody knows";
      continue;
    }
    EXPECT_EQ(Kunden_Feld(Nummer, Kundenfeld::TaxCalculation).toInt(),
              Steuerberechnung_ermitteln(Land, K.Text(Q("VatID"))))
        << Nummer.toStdString();
  }
  EXPECT_EQ(Steuerarten, (std::set<int>{0, 1, 2, 3, 4}));
  for (const char *Gruppe :
       {"", "Neuer Kunde", "Händler", "Händler EU", "Stammkunde", "Großhandel", "Vereine"})
    EXPECT_TRUE(Gruppen.contains(Q(Gruppe))) << Gruppe;
}

TEST_P(Demobuecher_Test, Rechnungskoepfe_sind_die_Summen_ihrer_Positionen) {
  int Anzahl = 0;
  for (db::Recordset R = Rechnungen(); !R.IsEOF(); R.MoveNext(), ++Anzahl) {
    const QString Nummer = R.Text(Q("InvoiceNumber"));
    Belegsumme S;
    ASSERT_TRUE(Beleg_summieren(
        S, {Q("Rechnung"), Nummer, int(R.Number(Q("Taxation"))), QString(), QString(), QString(), 0,
            R.Text(Q("SalesReturnString")), int(R.Number(Q("TaxCalculation")))}));
    for (const auto &[Feld, Wert] : {std::pair{"SubTotal", S.Zwischensumme},
                                     {"NetAmount", S.Netto},
                                     {"VatAmount", S.Steuer},
                                     {"GrossAmount", S.Brutto},
                                     {"DiscountAmount", S.Positionsrabatt},
                                     {"SalesReturn", S.Belegrabatt},
                                     {"TotalAmount", Endbetrag_ermitteln(S)}})
      EXPECT_EQ(R.Number(Q(Feld)), Wert) << Nummer.toStdString() << Feld;
  }
  EXPECT_EQ(Anzahl, 13);
}

TEST_P(Demobuecher_Test, Posten_zeigen_was_die_Belege_ergeben) {
  const QHash<QString, Postenart> Arten{{Q("Rechnung"), Postenart::Rechnung},
                                        {Q("Quittung"), Postenart::Quittung},
                                        {Q("Gutschrift"), Postenart::Gutschrift},
                                        {Q("Lieferanten-Rechnung"), Postenart::Lieferantenrechnung}};
  int Anzahl = 0;
  std::set<QString> Worte;
  for (db::Recordset P = Abfragen("SELECT * FROM OpenItems"); !P.IsEOF(); P.MoveNext(), ++Anzahl) {
    const QString Beleg = P.Text(Q("document")), Nummer = P.Text(Q("DocumentNumber"));
    Worte.insert(Beleg);
    ASSERT_TRUE(Arten.contains(Beleg));
    const auto W = Postenwerte_ermitteln(Arten[Beleg], Nummer, Beleg);
    ASSERT_TRUE(W) << Nummer.toStdString();
    EXPECT_EQ(W->Kontaktnummer, P.Text(Q("ContactNumber"))) << Nummer.toStdString();
    EXPECT_EQ(W->Kontakt, P.Text(Q("Contact"))) << Nummer.toStdString();
    EXPECT_EQ(W->Faellig, P.Value(Q("DuePayment")).toDateTime().date()) << Nummer.toStdString();
    EXPECT_EQ(W->Bezahlt, P.Flag(Q("Paid"))) << Nummer.toStdString();
    for (const auto &[Feld, Wert] : {std::pair{"Amount", W->Betrag},
                                     {"OverdueFines", W->Mahngebuehren},
                                     {"CreditAmount", W->Gutschriften},
                                     {"PaymentsReceived", W->Zahlungseingaenge},
                                     {"OutgoingPayments", W->Auszahlungen},
                                     {"OutstandingAmount", W->Offen}})
      EXPECT_EQ(P.Number(Q(Feld)), Wert) << Nummer.toStdString() << Feld;
  }
  EXPECT_EQ(Anzahl, 17);
  EXPECT_EQ(Worte.size(), 4U);
  // Before, on and behind the last day of the cash discount.
  db::Recordset R = Rechnungen();
  for (const bool Laeuft : {true, true, false}) {
    EXPECT_EQ(Skonto_Frist_laeuft(R.Text(Q("InvoiceNumber")), Kontext.gHeute), Laeuft);
    R.MoveNext();
  }
}

TEST_P(Demobuecher_Test, Jede_Entnahmestrategie_nimmt_andere_Lose) {
  std::set<int> Unterscheidbar;
  for (db::Recordset A =
           Abfragen({"SELECT * FROM Articles WHERE Character = ", db::Zahl(Kontext.gSQL_False)});
       !A.IsEOF(); A.MoveNext()) {
    std::set<QString> Listen;
    for (int Strategie = 0; Strategie < 5; ++Strategie) {
      QString Liste;
      Lager_Aufteilung(Liste, A.Text(Q("ArticleNumber")), A.Text(Q("Storage")), 1e6, Strategie);
      Listen.insert(Liste);
    }
    if (Listen.size() == 5) Unterscheidbar.insert(int(A.Number(Q("UnloadingPolicy"))));
  }
  EXPECT_EQ(Unterscheidbar, (std::set<int>{0, 1, 2, 3, 4}));
  EXPECT_GT(Lager_Verfuegbar(Q("RP1010"), QString()), 0);
  EXPECT_EQ(Bestand_zuteilen(Q("RP1010"), 1, QString()), QString());
}

TEST_P(Demobuecher_Test, Reservierungen_der_Auftraege_gehen_auf) {
  QHash<QString, double> Reserviert;
  for (db::Recordset R = Abfragen("SELECT * FROM Reservations"); !R.IsEOF(); R.MoveNext())
    Reserviert[R.Text(Q("StockingNumber"))] += R.Number(Q("Quantity"));
  for (db::Recordset L = Abfragen("SELECT * FROM Warehouse"); !L.IsEOF(); L.MoveNext())
    EXPECT_EQ(L.Number(Q("Unsociable")), Reserviert.take(L.Text(Q("StockingNumber"))));
  EXPECT_EQ(Reserviert.size(), 1) << "of a lot that is gone";
  const QString Auftrag = Abfragen("SELECT * FROM BackOrder").Text(Q("DocumentNumber"));
  EXPECT_EQ(Reserviert_fuer_Position(Q("Auftrag"), Auftrag, Q("WK1010"), Q("1")), 5.5);
  EXPECT_EQ(Transportauftrag_Menge(Q("Auftrag"), Auftrag, Q("WK1010"), Q("1"),
                                   Abfragen("SELECT * FROM TransportOrder").Text(Q("TransportNumber"))),
            3);
  EXPECT_EQ(Lager_Verfuegbar(Q("WK1010"), Artikel_Lager(Q("WK1010"))), 8.5);
  test::Dialoge_Skript Dialoge;
  Dialoge.Erwarten(Q("Hinweis"));
  for (db::Recordset A = Abfragen("SELECT * FROM Contract"); !A.IsEOF(); A.MoveNext())
    EXPECT_TRUE(Reservierungen_erzeugen(Q("Auftrag"), A.Text(Q("ContractNumber")), Q("Chef"),
                                        Reservierungen_aufloesen, true));
  EXPECT_EQ(Lager_Verfuegbar(Q("WK1010"), Artikel_Lager(Q("WK1010"))), 14.5);
}

}  // namespace
}  // namespace marklink::demo
