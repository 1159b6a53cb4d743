// Reserving, giving back, booking out, back orders.
#include "Lager_Test.h"
#include "db/Verbindung.h"
#include "support/Datenbank_Test.h"

namespace marklink::test {
namespace {

class Lager_Reservierung_Test : public Lager_Test {
 protected:
  Lager_Reservierung_Test() {
    Mandant.Einstellen("Counting", "Reservation", Q("1"));
    Mandant.Einstellen("NumberRange", "Reservation", Q("007"));
    Mandant.Einstellen("Formatting", "Reservation", Q("Nr.;Leer;Leer;Leer;Leer"));
    Artikel("A1");
    Los_einlagern("L1", 3, 1, 4.0);
    Los_einlagern("L2", 4, 2, 4.5);
  }
  bool Reservieren(const char *Beleg = "Rechnung", const char *Nummer = "R1") {
    return Reservierungen_erzeugen(Q(Beleg), Q(Nummer), Q("Chef"), Reservierungen_anlegen, true);
  }
  bool Aufloesen(const char *Beleg = "Rechnung", const char *Nummer = "R1") {
    return Reservierungen_erzeugen(Q(Beleg), Q(Nummer), Q("Chef"), Reservierungen_aufloesen, true);
  }
  /// Another workstation takes a piece of L1 ahead of each of the next transactions.
  struct Zweiter_Platz {
    explicit Zweiter_Platz(int Male) : Rest(Male) {
      db::Beobachter_setzen([this](const QString &text) {
        if (text != u"BEGIN" || Dabei || Rest-- <= 0) return;
        Dabei = true;
        Ausfuehren("UPDATE Warehouse SET Disposable = Disposable - 1 WHERE StockingNumber = 'L1'");
        Ausfuehren("UPDATE Warehouse SET Unsociable = Unsociable + 1 WHERE StockingNumber = 'L1'");
        Dabei = false;
      });
    }
    ~Zweiter_Platz() { db::Beobachter_setzen({}); }
    int Rest;
    bool Dabei = false;
  };
  /// While it lives, L1 cannot be changed.
  struct Sperriges_Los {
    explicit Sperriges_Los(const Testmandant &M) : Datei(M.Datenbankdatei()) {
      EXPECT_TRUE(
          Datei.lauf("CREATE TRIGGER nein BEFORE UPDATE ON Warehouse WHEN OLD.StockingNumber = 'L1' "
                     "BEGIN SELECT RAISE(ABORT, 'nein'); END"));
    }
    ~Sperriges_Los() { EXPECT_TRUE(Datei.lauf("DROP TRIGGER nein")); }
    Rohe_Verbindung Datei;
  };
  static QString Summen() { return Zeilen("SELECT Disposable, Unsociable FROM Articles"); }
};
MARKLINK_BEIDE_TYPEN(Lager_Reservierung_Test);

TEST_P(Lager_Reservierung_Test, Reservieren_schreibt_alle_drei_Tabellen) {
  Position("Rechnung", "R1", "1", Bestand_zuteilen(Q("A1"), 5, QString()));
  Position("Rechnung", "R1", "2", QVariant());
  Position("Rechnung", "R1", "3", QString());
  Position("Rechnung", "R2", "1", Q("A1;01-A;1;L1;;4;"));
  EXPECT_TRUE(Reservieren());
  EXPECT_EQ(Bestand(), Q("L1|3|0|3 L2|4|2|2"));
  EXPECT_EQ(Summen(), Q("2|5"));
  EXPECT_EQ(Zeilen("SELECT StorageNumber, ReservationNumber FROM Positions WHERE LineItemNumber = '1'"),
            Q("A1;01-A;3;L1;CHL1;4;007|A1;01-A;2;L2;CHL2;4,5;008|007;008 A1;01-A;1;L1;;4;|"));
  EXPECT_EQ(
      Zeilen("SELECT ReservationNumber, ReservationType, StockingNumber, StorageNumber, ArticleNumber, "
             "ShortText, [Date], Storage, Supplier, Quantity, Unit, Employee, ChargeNumber, document, "
             "DocumentNumber, LineItemNumber FROM Reservations ORDER BY ReservationNumber"),
      Q("007|-1|L1|01-A|A1|Ware|2024-06-15 00:00:00|Hauptlager|Großhandel|3|Stück|Chef|CHL1|Rechnung|R1|1 "
        "008|-1|L2|01-A|A1|Ware|2024-06-15 00:00:00|Hauptlager|Großhandel|2|Stück|Chef|CHL2|Rechnung|R1|1"));
  EXPECT_EQ(Option_lesen(Q("NumberRange"), Q("Reservation")), Q("009"));
}

TEST_P(Lager_Reservierung_Test, Ohne_Nummernkreis_eine_GUID) {
  Mandant.Einstellen("Counting", "Reservation", Q("0"));
  Position("Auftrag", "1", "1", Q("A1;01-A;1;L1;;4;|A1;01-A;1;L1;;4;"));
  EXPECT_TRUE(Reservieren("Auftrag", "1"));
  EXPECT_EQ(Bestand(), Q("L1|3|1|2 L2|4|4|0")) << "one lot, taken from twice";
  EXPECT_EQ(Zeilen("SELECT ReservationNumber FROM Positions").size(), 2 * 38 + 1);
  EXPECT_EQ(Option_lesen(Q("NumberRange"), Q("Reservation")), Q("007"));
}

TEST_P(Lager_Reservierung_Test, Schadhafte_Lose_bleiben_ohne_Reservierung) {
  // A lot without a number must never stand in for another one.
  Los_einlagern("", 9);
  const char *faelle[] = {"A1",
                          ";;;",
                          "||",
                          "A1;01-A;1;L9;;4;",
                          "A1;01-A;1;;;4;",
                          "A1;01-A;x;L1;;4;",
                          "A1;01-A;-1;L1;;4;",
                          "A1;01-A;0;L1;;4;",
                          "A1;01-A;1e5;L1;;4;",
                          "A1;01-A;1;L'1;;4;"};
  for (const char *fall : faelle) {
    Position("Auftrag", fall, "1", Q(fall));
    const QString vorher = Bestand();
    EXPECT_FALSE(Reservieren("Auftrag", fall)) << fall;
    EXPECT_EQ(Bestand(), vorher) << fall;
  }
  EXPECT_EQ(Zeilen("SELECT * FROM Reservations"), QString());
  EXPECT_EQ(Option_lesen(Q("NumberRange"), Q("Reservation")), Q("007"));
  Position("Auftrag", "halb", "1", Q("kaputt|A1;01-A;2;L1"));
  EXPECT_FALSE(Reservieren("Auftrag", "halb"));
  EXPECT_EQ(Bestand(), Q("|9|9|0 L1|3|1|2 L2|4|4|0"));
  EXPECT_EQ(Zeilen("SELECT StorageNumber FROM Positions WHERE DocumentNumber = 'halb'"),
            Q("kaputt|A1;01-A;2;L1;;;007"));
  EXPECT_FALSE(Reservierungen_erzeugen(Q("Auftrag"), Q("halb"), Q("Chef"), 2, true));
  EXPECT_FALSE(Reservieren("Auftrag", "ha'lb"));
}

TEST_P(Lager_Reservierung_Test, Ein_stehender_Nummernkreis_reserviert_keine_Nummer_zweimal) {
  Mandant.Einstellen("Formatting", "Reservation", Q("Jahr;Leer;Leer;Leer;Leer"));
  Position("Auftrag", "1", "1", Q("A1;01-A;1;L1;;4;|A1;01-A;1;L2;;4;"));
  EXPECT_FALSE(Reservieren("Auftrag", "1"));
  EXPECT_EQ(Zeilen("SELECT ReservationNumber, StockingNumber FROM Reservations"), Q("2024|L1"));
  EXPECT_EQ(Bestand(), Q("L1|3|2|1 L2|4|4|0"));
}

TEST_P(Lager_Reservierung_Test, Aufloesen_stellt_den_Bestand_her_auch_nach_einem_verschwundenen_Los) {
  Position("Rechnung", "R1", "1", Bestand_zuteilen(Q("A1"), 5, QString()));
  ASSERT_TRUE(Reservieren());
  ASSERT_TRUE(Ausfuehren("DELETE FROM Warehouse WHERE StockingNumber = 'L1'"));
  Dialoge_Skript dialoge;
  dialoge.Erwarten(Q("Hinweis"));
  EXPECT_TRUE(Aufloesen());
  ASSERT_EQ(dialoge.Gezeigt.size(), 1U);
  EXPECT_EQ(
      dialoge.Gezeigt[0].Zeilen,
      QStringList({Q("Im Lager ist kein Eintrag mehr für diesen Artikel vorhanden."),
                   Q("Der Bestand kann nicht eingebucht werden!"),
                   Q("Verwenden Sie bitte den Wareneingang um die Ware wieder dem Lager hinzu zufügen.")}));
  EXPECT_EQ(Bestand(), Q("L2|4|4|0"));
  EXPECT_EQ(Summen(), Q("4|0"));
  EXPECT_EQ(Zeilen("SELECT * FROM Reservations"), QString());
  EXPECT_EQ(Zeilen("SELECT ReservationNumber FROM Positions"), QString());
}

TEST_P(Lager_Reservierung_Test, Buchen_nimmt_aus_dem_Lager_und_merkt_den_Versand) {
  const struct {
    const char *Beleg, *Tabelle, *Feld;
  } koepfe[] = {
      {"Auftrag", "Contract", "ContractNumber"}, {"Lieferschein", "Delivery", "DeliveryNumber"},
      {"Rechnung", "Invoice", "InvoiceNumber"},  {"Transportauftrag", "TransportOrder", "TransportNumber"},
      {"Quittung", "Receipt", "ReceiptNumber"},  {"Retoure", "", ""}};
  double frei = 3;
  for (const auto &k : koepfe) {
    if (*k.Tabelle) Mandant.Zeile(Q(k.Tabelle), {Q(k.Feld), Q("B1")});
    Position(k.Beleg, "B1", "1", Q("A1;01-A;0,5;L1;;4;"));
    Position(k.Beleg, "B1", "2", QVariant());
    ASSERT_TRUE(Reservieren(k.Beleg, "B1"));
    Reservierungen_buchen(Q(k.Beleg), Q("B1"), Q("Chef"));
    frei -= 0.5;
    EXPECT_EQ(Bestand(), QStringLiteral("L1|%1|%1|0 L2|4|4|0").arg(frei)) << k.Beleg;
    EXPECT_EQ(
        Zeilen({"SELECT Dispatch, DispatchDate FROM Positions WHERE document = ", db::Wert{Q(k.Beleg)}}),
        Q("-1|2024-06-15 00:00:00 0|"));
    if (*k.Tabelle) {
      EXPECT_EQ(Zeilen({"SELECT Dispatch, DispatchDate FROM ", db::Name{Q(k.Tabelle)}}),
                Q("-1|2024-06-15 00:00:00"));
    }
  }
  EXPECT_EQ(Summen(), Q("4|0"));
}

TEST_P(Lager_Reservierung_Test, Rueckstaende_zweimal_erzeugt_stehen_einmal_da) {
  Mandant.Zeile(Q("Countries"), {Q("Token"), Q("DE"), Q("Description"), Q("Deutschland")});
  Mandant.Zeile(Q("Contacts"), {Q("CustomerNumber"), Q("K1"), Q("Matchcode"), Q("Meier, Hans"), Q("Country"),
                                Q("Deutschland")});
  Position("Auftrag", "1", "1", QVariant(), 2.5);
  Position("Auftrag", "1", "2", QVariant(), 0);
  Position("Auftrag", "1", "3", QVariant(), 1, "A2");
  for (int i = 0; i < 2; ++i) Rueckstaende_erzeugen(Q("Auftrag"), Q("1"), Q("K1"));
  EXPECT_EQ(Zeilen("SELECT CustomerNumber, Customer, [Date], document, DocumentNumber, LineItemNumber, "
                   "ArticleNumber, ShortText, Quantity FROM BackOrder ORDER BY LineItemNumber"),
            Q("K1|Meier, Hans|2024-06-15 00:00:00|Auftrag|1|1|A1|Ware|2.5 "
              "K1|Meier, Hans|2024-06-15 00:00:00|Auftrag|1|3|A2|Ware|1"));
  for (int i = 0; i < 2; ++i) Rueckstaende_erzeugen(Q("Auftrag"), Q("1"), Q("O'Neill"));
  EXPECT_EQ(Abfragen("SELECT * FROM BackOrder").RecordCount(), 2);
}

TEST_P(Lager_Reservierung_Test, Summen_eines_Lagers) {
  Los_einlagern("L3", 8, 1, 1.0, "01");
  Position("Auftrag", "1", "1", QVariant());
  Artikelbestand_aktualisieren(Q("Auftrag"), Q("1"));
  EXPECT_EQ(Summen(), Q("15|0"));
  Artikelbestand_aktualisieren(Q("Auftrag"), Q("1"), Q("01"));
  EXPECT_EQ(Summen(), Q("8|0")) << "exactly this storage, not those that begin like it";
}

TEST_P(Lager_Reservierung_Test, Ein_zweiter_Arbeitsplatz_und_ein_Los_das_sich_nicht_buchen_laesst) {
  Mandant.Einstellen("Counting", "Reservation", Q("0"));
  Position("Rechnung", "R1", "1", Q("A1;01-A;1;L1;;4;|A1;01-A;2;L2;;4;"));
  Position("Rechnung", "R1", "2", Q("A1;01-A;1;L2;;4;"));
  const auto reservierte = [] {
    return Zeilen("SELECT StockingNumber, Quantity FROM Reservations ORDER BY StockingNumber, Quantity");
  };
  {
    const Zweiter_Platz platz(2);
    EXPECT_TRUE(Reservieren());
  }
  EXPECT_EQ(Bestand(), Q("L1|3|0|3 L2|4|1|3")) << "everybody's pieces of L1 count";
  EXPECT_EQ(reservierte(), Q("L1|1 L2|1 L2|2"));
  {
    const Sperriges_Los los(Mandant);
    EXPECT_FALSE(Aufloesen());
  }
  EXPECT_EQ(Bestand(), Q("L1|3|0|3 L2|4|4|0")) << "what could be given back was";
  EXPECT_EQ(reservierte(), Q("L1|1"));
  EXPECT_EQ(Zeilen("SELECT ReservationNumber FROM Positions ORDER BY LineItemNumber"),
            Zeilen("SELECT ReservationNumber FROM Reservations") + u' ');
  EXPECT_TRUE(Aufloesen());
  EXPECT_EQ(Bestand(), Q("L1|3|1|2 L2|4|4|0"));
  {
    const Sperriges_Los los(Mandant);
    EXPECT_FALSE(Reservieren());
  }
  EXPECT_EQ(reservierte(), Q("L2|1 L2|2")) << "no reservation of what was not moved";
  EXPECT_EQ(Summen(), Q("2|5"));
  EXPECT_TRUE(Aufloesen());
  EXPECT_TRUE(Reservieren());
  Mandant.Zeile(Q("Invoice"), {Q("InvoiceNumber"), Q("R1")});
  {
    const Sperriges_Los los(Mandant);
    Reservierungen_buchen(Q("Rechnung"), Q("R1"), Q("Chef"));
  }
  EXPECT_EQ(Bestand(), Q("L1|3|0|3 L2|1|1|0"));
  EXPECT_EQ(Zeilen("SELECT Dispatch FROM Positions ORDER BY LineItemNumber"), Q("0 -1"));
  EXPECT_EQ(Zeilen("SELECT Dispatch FROM Invoice"), Q("-1"));
  EXPECT_EQ(Summen(), Q("1|3"));
}

// Whether a batch was written whose commit nobody answered is seen by the lot, not guessed.
TEST_P(Lager_Reservierung_Test, Eine_verlorene_Antwort_bucht_nicht_zweimal) {
  if (!Mandant.Server()) GTEST_SKIP() << "only a server's answer gets lost";
  Position("Rechnung", "R1", "1", Q("A1;01-A;2;L1;;4;"));
  for (const char *wie : {"trennen-danach", "trennen"}) {
    bool am_Lager = false, getrennt = false;
    db::Beobachter_setzen([&](const QString &text) {
      am_Lager |= text == u"UPDATE Warehouse";
      if (!am_Lager || getrennt || text != u"COMMIT") return;
      getrennt = true;
      Mandant.Server()->Stellen(wie, 1);
    });
    EXPECT_TRUE(Reservieren()) << wie;
    db::Beobachter_setzen({});
    EXPECT_TRUE(getrennt);
    EXPECT_EQ(Bestand(), Q("L1|3|1|2 L2|4|4|0")) << wie;
    EXPECT_TRUE(Aufloesen());
    EXPECT_EQ(Bestand(), Q("L1|3|3|0 L2|4|4|0")) << wie;
  }
}

// Whatever fails on the way, no reservation may stand for what was not moved in stock.
TEST_P(Lager_Reservierung_Test, Keine_Reservierung_ohne_Bestand) {
  Mandant.Einstellen("Counting", "Reservation", Q("0"));
  Position("Rechnung", "R1", "1", Q("A1;01-A;0,1;L1;;4;|A1;01-A;0,2;L1;;4;|A1;01-A;2;L2;;4;"));
  bool gut = false;
  for (int n = 1; n < 200 && !gut; ++n) {
    db::Fehler_einspeisen(n);
    const bool ganz = Reservieren();
    gut = ganz && db::Aufrufe_gezaehlt() < n;
    db::Fehler_einspeisen(0);
    for (db::Recordset w = Abfragen("SELECT * FROM Warehouse"); !w.IsEOF(); w.MoveNext()) {
      double reserviert = 0;
      for (db::Recordset r = Abfragen("SELECT * FROM Reservations"); !r.IsEOF(); r.MoveNext())
        if (r.Text(Q("StockingNumber")) == w.Text(Q("StockingNumber")))
          reserviert = Menge_summe(reserviert, r.Number(Q("Quantity")));
      EXPECT_LE(reserviert, w.Number(Q("Unsociable"))) << n;
      EXPECT_EQ(Menge_summe(w.Number(Q("Disposable")), w.Number(Q("Unsociable"))), w.Number(Q("Quantity")))
          << n;
    }
    EXPECT_TRUE(!ganz || Abfragen("SELECT * FROM Reservations").RecordCount() == 3) << n;
    if (gut) break;
    Ausfuehren("DELETE FROM Reservations");
    Ausfuehren("UPDATE Warehouse SET Disposable = Quantity, Unsociable = 0");
    Ausfuehren("UPDATE Positions SET ReservationNumber = NULL");
  }
  EXPECT_TRUE(gut);
  EXPECT_EQ(Bestand(), Q("L1|3|2.7|0.3 L2|4|2|2")) << "without noise";
  EXPECT_TRUE(Aufloesen());
  EXPECT_EQ(Bestand(), Q("L1|3|3|0 L2|4|4|0"));
}

TEST_P(Lager_Reservierung_Test, Der_Aufwand_haengt_nicht_am_Lager) {
  Position("Auftrag", "1", "1", Q("A1;01-A;1;L1;;4;"));
  QStringList gesehen;
  db::Beobachter_setzen([&](const QString &text) { gesehen << text; });
  EXPECT_TRUE(Reservieren("Auftrag", "1"));
  Reservierungen_buchen(Q("Auftrag"), Q("1"), Q("Chef"));
  db::Beobachter_setzen({});
  for (const QString &text : gesehen)
    EXPECT_FALSE(text == u"SELECT * FROM Warehouse" || text == u"SELECT * FROM Articles")
        << text.toStdString();
}

}  // namespace
}  // namespace marklink::test
