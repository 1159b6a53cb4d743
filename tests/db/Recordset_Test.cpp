// The record set as its callers use it: fields, moves, filters, searches.
#include <functional>

#include <random>
#include "db/Ablaufverfolgung.h"

#include "db/Bestelltabelle.h"
#include "db/Zeitpunkt.h"

namespace marklink::test {
namespace {

using namespace db;
MARKLINK_ALLE_BETRIEBSARTEN(Recordset_Test);

TEST_P(Recordset_Test, Felder_kommen_zurueck_wie_sie_gesetzt_wurden) {
  Recordset r = offen("SELECT * FROM Orders");
  r.AddNew();
  EXPECT_TRUE(r.IsNull(T("Notes")));
  EXPECT_FALSE(r.Flag(T("Invoice")));
  r.SetValue(T("orderid"), T("1001"));
  r.SetValue(T("CUSTOMER"), T("Jörg Übel"));
  r.SetValue(T("Notes"), T("×~ 'x' \"y\"\r\n€"));
  r.SetValue(T("Amount"), 0.1);
  r.SetValue(T("Count"), 7);
  r.SetValue(T("Colour"), 16777215);
  r.SetValue(T("Date"), Zeitpunkt(QDate(2024, 2, 29), QTime(13, 5, 9)));
  r.SetValue(T("Invoice"), true);
  r.SetValue(T("Picture"), QByteArray("\0\xff'", 3));
  r.SetValue(T("NoSuch"), 1);  // passed over
  r.Update();
  ASSERT_TRUE(r.UpdateBatch());

  const Recordset s = offen("SELECT * FROM Orders WHERE OrderID = '1001'");
  ASSERT_EQ(s.RecordCount(), 1);
  EXPECT_EQ(s.Value(T("Customer")), QVariant(T("Jörg Übel")));
  EXPECT_EQ(s.Text(T("Notes")), T("×~ 'x' \"y\"\r\n€"));
  EXPECT_EQ(s.Value(T("Amount")), QVariant(0.1));
  EXPECT_EQ(s.Text(T("Amount")), T("0.1"));
  EXPECT_EQ(s.Value(T("Count")), QVariant(7));
  EXPECT_EQ(s.Value(T("Colour")), QVariant(16777215));
  EXPECT_EQ(s.Value(T("Date")), QVariant(Zeitpunkt(QDate(2024, 2, 29), QTime(13, 5, 9))));
  EXPECT_EQ(s.Text(T("Date")), T("2024-02-29 13:05:09"));
  EXPECT_EQ(s.Value(T("Invoice")), QVariant(true));
  EXPECT_EQ(s.Value(T("Picture")), QVariant(QByteArray("\0\xff'", 3)));
  EXPECT_FALSE(s.Value(T("NoSuch")).isValid());
  EXPECT_EQ(roh("SELECT Invoice FROM Orders"), jet() ? T("-1") : T("1"));
}

TEST_P(Recordset_Test, Spalten_nehmen_nur_was_zu_ihnen_passt) {
  const QVariant nichts;
  const struct {
    const char *Feld;
    QVariant Wert;
    const char *Text;  ///< nullptr: the field stays as it was
  } tafel[] = {{"Amount", T("12.5"), "12.5"},
               {"Amount", T("12,5"), nullptr},
               {"Amount", T("x"), nullptr},
               {"Amount", T(""), nullptr},
               {"Amount", 3, "3"},
               {"Amount", nichts, ""},
               {"Amount", qQNaN(), nullptr},
               {"Count", 40000, nullptr},
               {"Count", 2.5, "2"},
               {"Count", 3.5, "4"},
               {"Count", T(" 8 "), "8"},
               {"Colour", 3e9, nullptr},
               {"Colour", true, "-1"},
               {"Customer", 1.25, "1.25"},
               {"Customer", 7, "7"},
               {"Date", T("31.01.2024"), "2024-01-31 00:00:00"},
               {"Date", T("2024-01-31T23:59"), "2024-01-31 23:59:00"},
               {"Date", T("31.01.2024 7:05:09"), "2024-01-31 07:05:09"},
               {"Date", T("2024-01-31"), "2024-01-31 00:00:00"},
               {"Date", QDate(2024, 3, 31), "2024-03-31 00:00:00"},
               {"Date", T("30.02.2024"), nullptr},
               {"Date", T("morgen"), nullptr},
               {"Date", T("0000-00-00 00:00:00"), nullptr},
               {"Date", 5, nullptr},
               {"Invoice", 5, "-1"},
               {"Invoice", T("Wahr"), "-1"},
               {"Invoice", 0, "0"},
               {"Invoice", nichts, "0"},
               {"Invoice", T("vielleicht"), nullptr},
               {"Picture", T("text"), nullptr}};
  for (const auto &z : tafel) {
    Recordset r = offen("SELECT * FROM Orders");
    r.AddNew();
    const QString vorher = r.Text(T(z.Feld));
    r.SetValue(T(z.Feld), z.Wert);
    EXPECT_EQ(r.Text(T(z.Feld)), z.Text ? T(z.Text) : vorher)
        << z.Feld << " " << z.Wert.toString().toStdString();
  }
}

TEST_P(Recordset_Test, wandert_wie_ein_Zeiger) {
  fuellen(3);
  Recordset r = offen("SELECT * FROM Orders ORDER BY OrderID");
  EXPECT_EQ(r.AbsolutePosition(), 1);
  r.MovePrevious();
  EXPECT_TRUE(r.IsBOF());
  EXPECT_EQ(r.AbsolutePosition(), 0);
  EXPECT_TRUE(r.IsNull(T("OrderID")));
  r.MoveNext();
  QStringList nummern;
  for (; !r.IsEOF(); r.MoveNext()) nummern.append(r.Text(T("OrderID")));
  EXPECT_EQ(nummern.join(u','), T("A1,A2,A3"));
  r.MoveNext();
  EXPECT_TRUE(r.IsEOF());
  r.AbsolutePosition_setzen(2);
  EXPECT_EQ(r.Text(T("OrderID")), T("A2"));
  r.MoveLast();
  EXPECT_EQ(r.AbsolutePosition(), 3);
  r.Filter("OrderID = 'none'");
  EXPECT_TRUE(r.IsBOF() && r.IsEOF());
  EXPECT_EQ(r.RecordCount(), 0);
}

TEST_P(Recordset_Test, filtert_ohne_Gross_und_Klein_und_mit_Und_und_Oder) {
  roh_lauf(
      "INSERT INTO Orders (OrderID, Customer, Amount, Count, Date, Invoice) VALUES"
      "('1','Müller',10,1,'2024-01-31 00:00:00',-1),('2','MÜLLER',20,2,'2024-02-01 12:00:00',0),"
      "('3','Maier',30,3,NULL,1),('4',NULL,40,NULL,NULL,0)");
  const struct {
    const char *Filter, *Treffer;
  } tafel[] = {
      {"Customer = 'mÜLLER'", "1,2"},
      {"Orders.Customer <> 'müller'", "3"},
      {"Customer LIKE 'M%er' AND Amount >= 20", "2,3"},
      {"(OrderID = '1' OR OrderID = '4') AND Amount < 40.5", "1,4"},
      {"OrderID = '1' OR OrderID = '4' AND Amount < 5", "1"},
      {"NOT (Customer LIKE 'mü%')", "3,4"},
      {"Customer = NULL", "4"},
      {"Customer IS NOT NULL AND [Count] <> 2", "1,3"},
      {"[Date] = #1/31/2024#", "1"},
      {"[Date] > '2024-01-31'", "2"},
      {"Invoice = True", "1,3"},
      {"Invoice = 0", "2,4"},
      {"Invoice <> 0", "1,3"},
      {"Amount = '20'", "2"},
      {"Amount = 'x'", ""},
      {"Amount > -1 AND Customer > 'Maier'", "1,2"},
      {"Customer = ''", ""},
  };
  Recordset gelesen = offen("SELECT * FROM Orders ORDER BY OrderID");
  Recordset faul = offen("SELECT * FROM Orders");
  for (const auto &z : tafel) {
    char text[200] = {};
    qstrncpy(text, z.Filter, sizeof text);
    for (Recordset *r : {&gelesen, &faul}) {
      EXPECT_TRUE(r->Filter(text)) << z.Filter;
      QStringList treffer;
      for (; !r->IsEOF(); r->MoveNext()) treffer.append(r->Text(T("OrderID")));
      if (ueber_Leitung()) treffer.sort();  // a look-up on the server promises no order
      EXPECT_EQ(treffer.join(u','), T(z.Treffer)) << z.Filter;
      EXPECT_EQ(r->RecordCount(), treffer.size()) << z.Filter;
    }
  }
  for (const char *falsch : {"", "NoSuch = 1", "Customer", "Customer = ", "Customer = 'a' Amount = 1",
                             "(Amount = 1", "Amount = Count", "Customer = 'a'; DELETE", "Customer == 'a'"}) {
    char text[200] = {};
    qstrncpy(text, falsch, sizeof text);
    EXPECT_FALSE(gelesen.Filter(text)) << falsch;
    EXPECT_EQ(gelesen.RecordCount(), 4) << falsch;
    EXPECT_EQ(gelesen.AbsolutePosition(), 1) << falsch;
  }
  EXPECT_FALSE(gelesen.Filter({"Customer = ", Wert{T("O'Neill")}}));
  EXPECT_EQ(gelesen.RecordCount(), 4);
}

TEST_P(Recordset_Test, liest_eine_Tabelle_nicht_wenn_nur_angefuegt_oder_nachgeschlagen_wird) {
  fuellen(5);
  beobachten();
  Recordset r = offen("SELECT * FROM Orders");
  EXPECT_TRUE(r.HasField(T("orderid")));
  r.AddNew();
  r.SetValue(T("OrderID"), T("B1"));
  r.Update();
  ASSERT_TRUE(r.UpdateBatch());
  EXPECT_EQ(gesehen.join(u'/'), T("BEGIN/INSERT INTO Orders/COMMIT"));
  gesehen.clear();
  ASSERT_TRUE(r.Filter({"OrderID = ", Wert{T("a3")}}));
  EXPECT_EQ(r.RecordCount(), 1);
  r.SetValue(T("Amount"), 99);
  r.Update();
  ASSERT_TRUE(r.UpdateBatch());
  EXPECT_EQ(r.Text(T("OrderID")), T("A3"));
  ASSERT_TRUE(r.Filter({"Customer = ", Wert{T("Kunde 2")}, " AND Amount < 100"}));
  EXPECT_EQ(r.Text(T("OrderID")), T("A2"));
  EXPECT_EQ(
      gesehen.filter(T("SELECT")).join(u'/'),
      T("SELECT * FROM Orders WHERE [OrderID] = 'a3'/SELECT * FROM Orders WHERE [Customer] = 'Kunde 2'"));
  gesehen.clear();
  r.ClearFilter();
  EXPECT_EQ(r.RecordCount(), 6);
  EXPECT_EQ(gesehen, QStringList{T("SELECT * FROM Orders")});
  EXPECT_EQ(r.Text(T("OrderID")), T("A1"));
}

TEST_P(Recordset_Test, zeigt_Ungesendetes_unter_jedem_Filter) {
  fuellen(3);
  for (const bool vorher_lesen : {false, true}) {
    Recordset r = offen("SELECT * FROM Orders");
    if (vorher_lesen) r.MoveLast();
    r.Filter("OrderID = 'A2'");
    r.SetValue(T("Customer"), T("Neu"));
    r.Update();
    r.Filter("OrderID = 'A3'");
    r.Delete();
    r.AddNew();
    r.SetValue(T("OrderID"), T("A4"));
    r.SetValue(T("Customer"), T("neu"));
    r.Update();
    EXPECT_TRUE(r.Filter("Customer = 'NEU'"));
    EXPECT_EQ(r.RecordCount(), 2);
    EXPECT_EQ(r.Text(T("OrderID")), T("A2"));
    r.Filter("Customer = 'Kunde 2'");
    EXPECT_EQ(r.RecordCount(), 0);
    r.Filter("OrderID = 'A3'");
    EXPECT_EQ(r.RecordCount(), 0);
    r.ClearFilter();
    EXPECT_EQ(r.RecordCount(), 3);
    r.MoveLast();
    EXPECT_EQ(r.Text(T("OrderID")), T("A4"));
    EXPECT_TRUE(r.HasPendingChanges());
    EXPECT_EQ(roh("SELECT count(*) FROM Orders WHERE OrderID = 'A3'"), T("1"));
  }
}

TEST_P(Recordset_Test, sucht_vorwaerts_und_bleibt_in_der_Ordnung_der_Tabelle) {
  fuellen(5);
  for (const bool vorher_lesen : {false, true}) {
    beobachten();
    Recordset r = offen("SELECT * FROM Orders");
    if (vorher_lesen) {
      r.MoveLast();
      r.MoveFirst();
    }
    gesehen.clear();
    EXPECT_TRUE(r.Find("OrderID = 'a3'"));
    r.SetValue(T("Amount"), 1000);
    EXPECT_TRUE(r.Find("OrderID = 'A3'"));  // itself included
    EXPECT_EQ(r.Number(T("Amount")), 1000);
    EXPECT_TRUE(r.Find("OrderID = 'A5'"));
    // What lies behind the current row the server does not tell.
    if (!ueber_Leitung()) {
      EXPECT_FALSE(gesehen.contains(T("SELECT * FROM Orders")));
    }
    EXPECT_EQ(r.AbsolutePosition(), 5);
    EXPECT_FALSE(r.Find("OrderID = 'A1'"));  // lies behind
    EXPECT_TRUE(r.IsEOF());
    r.MoveFirst();
    EXPECT_TRUE(r.Find("Amount > 5"));
    EXPECT_EQ(r.Text(T("OrderID")), T("A3"));
    EXPECT_FALSE(r.Find("NoSuch = 1"));
  }
}

/// What a set shows of a table without a key, in an order of its own.
QStringList Inhalt(Recordset &R) {
  QStringList zeilen;
  for (R.MoveFirst(); !R.IsEOF(); R.MoveNext())
    zeilen.append(R.Text(T("Section")) + u'|' + R.Text(T("Key")) + u'|' + R.Text(T("Value")));
  zeilen.sort();
  return zeilen;
}

// Looked up in and read as a whole: whatever is done to either, both show the same rows, twins among them.
TEST_P(Recordset_Test, eine_Tabelle_ohne_Schluessel_nachgeschlagen_wie_gelesen) {
  for (unsigned lauf = 0; lauf < 40; ++lauf) {
    ASSERT_TRUE(roh_lauf("DELETE FROM Options"));
    ASSERT_TRUE(roh_lauf(
        "INSERT INTO Options VALUES ('a','k','1'),('a','k','1'),('a','l','1'),('b','k','1'),('b','k',NULL)"));
    Recordset einzeln = offen("SELECT * FROM Options"), ganz = offen("SELECT * FROM Options");
    ganz.MoveLast();
    std::minstd_rand wuerfel(lauf + 1);
    const auto wurf = [&wuerfel](unsigned n) { return static_cast<int>(wuerfel() / 16 % n); };
    const auto buchstabe = [&] { return QString(QChar(u'a' + wurf(3))); };
    beobachten();
    int gelesen = 0;
    for (int schritt = 0; schritt < 12; ++schritt) {
      const QString hier = buchstabe(), wert = QString::number(wurf(3)), ziel = buchstabe();
      const int was = wurf(6);
      for (Recordset *r : {&einzeln, &ganz}) r->Filter({"Section = ", Wert{hier}});
      const QStringList zeilen = Inhalt(ganz);
      ASSERT_EQ(Inhalt(einzeln), zeilen) << lauf << " " << schritt;
      const QString eine = zeilen.value(zeilen.isEmpty() ? 0 : wurf(static_cast<unsigned>(zeilen.size())));
      for (Recordset *r : {&einzeln, &ganz}) {
        for (r->MoveFirst(); !r->IsEOF(); r->MoveNext()) {
          if (r->Text(T("Section")) + u'|' + r->Text(T("Key")) + u'|' + r->Text(T("Value")) == eine) break;
        }
        if (was == 0 || zeilen.isEmpty()) {
          r->AddNew();
          r->SetValue(T("Section"), hier);
        }
        if (was == 1 && !zeilen.isEmpty()) r->Delete();
        if (was > 1 && !r->IsEOF()) r->SetValue(was == 2 ? T("Section") : T("Value"), was == 2 ? ziel : wert);
        r->Update();
      }
      if (wurf(4) > 0) continue;
      ASSERT_TRUE(einzeln.UpdateBatch());
      ASSERT_TRUE(ganz.Requery());
      ++gelesen;
    }
    EXPECT_EQ(gesehen.count(T("SELECT * FROM Options")), gelesen);
    for (Recordset *r : {&einzeln, &ganz}) r->ClearFilter();
    ASSERT_EQ(Inhalt(einzeln), Inhalt(ganz)) << lauf;
    ASSERT_TRUE(einzeln.UpdateBatch());
    EXPECT_EQ(
        roh("SELECT Section || '|' || IFNULL([Key],'') || '|' || IFNULL(Value,'') FROM Options ORDER BY 1"),
        Inhalt(ganz).join(u'\n'))
        << lauf;
  }
}

TEST_P(Recordset_Test, verwirft_Angefangenes) {
  fuellen(2);
  Recordset r = offen("SELECT * FROM Orders ORDER BY OrderID");
  r.SetValue(T("Customer"), T("x"));
  r.Update();
  r.SetValue(T("Customer"), T("y"));
  r.CancelUpdate();
  EXPECT_EQ(r.Text(T("Customer")), T("x"));
  r.MoveLast();
  r.AddNew();
  r.SetValue(T("OrderID"), T("Z"));
  r.CancelUpdate();
  EXPECT_EQ(r.RecordCount(), 2);
  EXPECT_EQ(r.Text(T("OrderID")), T("A2"));
  r.Delete();
  EXPECT_TRUE(r.IsEOF());
  EXPECT_TRUE(r.Requery());
  EXPECT_EQ(r.RecordCount(), 2);
  EXPECT_EQ(r.Text(T("Customer")), T("Kunde 1"));
  EXPECT_FALSE(r.HasPendingChanges());
}

TEST_P(Recordset_Test, Fehlschlaege_hinterlassen_eine_leere_Menge) {
  fuellen(1);
  for (const char *sql : {"SELECT * FROM NoSuch", "SELECT * FROM", "SELECT [NoSuch] FROM Orders",
                          "SELECT \"x\" FROM Orders", "SELECT * FROM Orders; DELETE FROM Orders"}) {
    char text[200] = {};
    qstrncpy(text, sql, sizeof text);
    Recordset r = offen("SELECT * FROM Orders");
    EXPECT_FALSE(r.Open(text, verbindung)) << sql;
    EXPECT_EQ(r.RecordCount(), 0);
    EXPECT_TRUE(r.IsEOF() && r.IsBOF());
    EXPECT_TRUE(r.Fields().isEmpty());
    r.AddNew();
    r.SetValue(T("OrderID"), 1);
    r.Delete();
    EXPECT_FALSE(r.Requery());
    EXPECT_FALSE(r.HasPendingChanges());
  }
  Recordset r;
  EXPECT_FALSE(r.Open({"SELECT * FROM Orders WHERE OrderID = ", Wert{T("x' OR '1'='1")}}, verbindung));
  EXPECT_EQ(r.RecordCount(), 0);
  EXPECT_FALSE(r.Open("SELECT * FROM Orders", T("Provider=Oracle;Data Source=x")));
  EXPECT_EQ(roh("SELECT count(*) FROM Orders"), T("1"));
}

// A set that looked empty after a late read that failed would get every row of its table a second time.
TEST_P(Recordset_Test, ein_gescheitertes_Nachlesen_schliesst_die_Menge) {
  Rohe_Verbindung(datei).lauf("INSERT INTO Options VALUES ('a','k','1')");
  const std::function<void(Recordset &)> anlaesse[] = {
      [](Recordset &r) { EXPECT_FALSE(r.Filter("Value = '1'")); },
      [](Recordset &r) { EXPECT_FALSE(r.Find("Value = '1'")); },
      [](Recordset &r) { EXPECT_EQ(r.RecordCount(), 0); },
      [](Recordset &r) { r.MoveLast(); },
      [](Recordset &r) { r.Delete(); },
      [](Recordset &r) { EXPECT_TRUE(r.IsNull(T("Value"))); },
      [](Recordset &r) { r.SetValue(T("Value"), T("x")); }};
  for (const auto &anlass : anlaesse) {
    for (int n = 1; n <= 2; ++n) {
      Recordset r = offen("SELECT * FROM Options");
      Fehler_einspeisen(n);
      anlass(r);
      Fehler_einspeisen(0);
      EXPECT_FALSE(r.IsOpen());
      EXPECT_TRUE(r.IsEOF() && r.IsBOF());
      r.ClearFilter();
      r.AddNew();
      r.SetValue(T("Section"), T("a"));
      r.Update();
      EXPECT_FALSE(r.UpdateBatch());
      EXPECT_EQ(r.RecordCount(), 0);
      EXPECT_FALSE(r.HasPendingChanges());
      EXPECT_EQ(roh("SELECT * FROM Options"), T("a|k|1"));
      EXPECT_TRUE(r.Open("SELECT * FROM Options", verbindung));
      EXPECT_EQ(r.RecordCount(), 1);
    }
  }
}

TEST_P(Recordset_Test, ein_gescheitertes_Nachschlagen_liest_ganz_oder_schliesst) {
  fuellen(2);
  for (int n = 1; n <= 2; ++n) {
    Recordset r = offen("SELECT * FROM Orders");
    Fehler_einspeisen(n);
    EXPECT_TRUE(r.Filter("OrderID = 'A2'"));
    Fehler_einspeisen(0);
    EXPECT_EQ(r.Text(T("Customer")), T("Kunde 2"));
    EXPECT_EQ(r.RecordCount(), 1);
  }
  Recordset r = offen("SELECT * FROM Orders");
  EXPECT_TRUE(r.Find("OrderID = 'A1'"));
  r.SetValue(T("Notes"), T("x"));
  r.AddNew();
  r.SetValue(T("OrderID"), T("B1"));
  qputenv("MARKLINK_TRACE", "1");
  testing::internal::CaptureStderr();
  if (ueber_Leitung()) {
    Fehler_einspeisen(1);
    Beobachter_setzen([](const QString &) { Fehler_einspeisen(1); });
  } else {
    ASSERT_TRUE(QFile::rename(datei, datei + T(".weg")));
  }
  EXPECT_FALSE(r.Filter("OrderID = 'A2'"));
  Beobachter_setzen({});
  Fehler_einspeisen(0);
  if (!ueber_Leitung()) {
    ASSERT_TRUE(QFile::rename(datei + T(".weg"), datei));
  }
  r.Filter("OrderID = 'A2'");
  EXPECT_TRUE(r.IsNull(T("OrderID")));
  const std::string spur = testing::internal::GetCapturedStderr();
  qunsetenv("MARKLINK_TRACE");
  EXPECT_FALSE(r.IsOpen());
  EXPECT_NE(spur.find("pending rows lost: 2"), std::string::npos) << spur;
  EXPECT_EQ(spur.find("understood"), std::string::npos) << spur;
  EXPECT_EQ(spur.find("no such field"), std::string::npos) << spur;
  // A row that is known, and deleted while its neighbours are not.
  r = offen("SELECT * FROM Orders");
  EXPECT_TRUE(r.Find("OrderID = 'A1'"));
  Fehler_einspeisen(2);
  r.Delete();
  Fehler_einspeisen(0);
  EXPECT_FALSE(r.IsOpen());
  EXPECT_EQ(anzahl("SELECT OrderID FROM Orders"), 2);
}

TEST_P(Recordset_Test, ein_gescheitertes_Requery_laesst_alles_wie_es_war) {
  fuellen(3);
  for (const Anweisung &sql :
       {Anweisung("SELECT * FROM Orders"), Anweisung("SELECT * FROM Orders ORDER BY OrderID")}) {
    Recordset r = offen(sql);
    EXPECT_EQ(r.RecordCount(), 3);
    r.Filter("Amount > 2");
    r.SetValue(T("Notes"), T("x"));
    r.Update();
    Fehler_einspeisen(0);
    bool gescheitert = true;
    for (int n = 1; gescheitert; ++n) {
      Fehler_einspeisen(n);
      gescheitert = !r.Requery();
      ASSERT_EQ(gescheitert, Aufrufe_gezaehlt() >= n);
      Fehler_einspeisen(0);
      EXPECT_TRUE(r.IsOpen());
      EXPECT_EQ(r.RecordCount(), 2);
      EXPECT_EQ(r.AbsolutePosition(), 1);
      EXPECT_EQ(r.HasPendingChanges(), gescheitert);
      EXPECT_EQ(r.Text(T("Notes")), gescheitert ? T("x") : QString());
    }
  }
}

// Copies of one row, of which an older one has been saved since.
TEST_P(Recordset_Test, liest_nach_einem_halben_Stapel_den_Stand_der_Tabelle) {
  fuellen(3);
  Recordset r = offen("SELECT * FROM Orders");
  EXPECT_TRUE(r.Find("OrderID = 'A1'"));
  EXPECT_TRUE(r.Find("OrderID = 'A1'"));
  r.SetValue(T("Notes"), T("neu"));
  r.AddNew();
  r.SetValue(T("OrderID"), T("a2"));  // there already
  r.Update();
  EXPECT_FALSE(r.UpdateBatch());
  EXPECT_EQ(r.RecordCount(), 4);
  r.MoveFirst();
  EXPECT_EQ(r.Text(T("Notes")), T("neu"));
  EXPECT_TRUE(r.Requery());
  EXPECT_EQ(r.RecordCount(), 3);
}

TEST_P(Recordset_Test, Aussagen_ueber_Wahr_Null_und_Datum_finden_ihre_Zeilen) {
  Rohe_Verbindung(datei).lauf(
      jet()
          ? "INSERT INTO Orders (OrderID, Invoice, Date) VALUES ('1',-1,'2024-01-31 00:00:00'),('2',0,NULL)"
          : "INSERT INTO Orders (OrderID, Invoice, Date) VALUES ('1',1,'2024-01-31 00:00:00'),('2',0,NULL)");
  EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE Invoice = ", wahr()}), 1);
  const Anweisung leer = jet() ? Anweisung("SELECT * FROM Orders WHERE IsNull([Date]) = True")
                               : Anweisung("SELECT * FROM Orders WHERE [Date] IS NULL");
  const Anweisung belegt =
      jet() ? Anweisung("SELECT * FROM Orders WHERE IsNull(Orders.[Date]) = False AND Invoice = True")
            : Anweisung("SELECT * FROM Orders WHERE Orders.[Date] IS NOT NULL AND Invoice = 1");
  EXPECT_EQ(offen(leer).Text(T("OrderID")), T("2"));
  EXPECT_EQ(offen(belegt).Text(T("OrderID")), T("1"));
  const Anweisung zeitraum =
      jet()
          ? Anweisung(
                "SELECT * FROM Orders WHERE [Date] BETWEEN #1/1/2024 00:00:00# AND #1/31/2024 00:00:00#")
          : Anweisung(
                "SELECT * FROM Orders WHERE [Date] BETWEEN CONVERT(datetime, '2024-01-01 00:00:00', 120) AND "
                "CONVERT(datetime, '2024-01-31 00:00:00', 120)");
  EXPECT_EQ(anzahl(zeitraum), 1);
}

TEST_P(Recordset_Test, Abfragen_kennen_Umlaute) {
  roh_lauf(
      "INSERT INTO Orders (OrderID, Customer) VALUES "
      "('1','Zoo'),('2','ÄPFEL'),('3','apfel'),('4','äöüéè'),('5','Birne')");
  EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE Customer = ", Wert{T("äpfel")}}), 1);
  EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE Customer <> ", Wert{T("äpfel")}}), 4);
  EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE Customer = ", Wert{T("ÄÖÜÉÈ")}}), 1);
  EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE Customer IN (",
                    Werteliste{{T("Äpfel"), T("ÄÖÜÉÈ"), T("zoo")}}, ")"}),
            3);
  EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE Customer LIKE ", Wert{T("äp%")}}), 1);
  EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE ", Wert{T("äpfel")}, " = Customer"}), 1);
  EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE ", Wert{T("äpfel")}, " <> Customer"}), 4);
  EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE ", Wert{T("b")}, " > Customer"}), 3);
  EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE OrderID IN (SELECT OrderID FROM Orders WHERE Customer LIKE ",
                    Wert{T("äp%")}, ")"}),
            1);
  EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE Customer < ", Wert{T("b")}}), 3);
  Recordset r = offen("SELECT OrderID FROM Orders ORDER BY Customer DESC");
  QString folge;
  for (; !r.IsEOF(); r.MoveNext()) folge += r.Text(T("OrderID"));
  EXPECT_EQ(folge, T("15234"));
  // A kept statement serves other plain values, but never other ones with umlauts.
  const struct {
    const char *Kunde, *Nummer;
    int Anzahl;
  } tafel[] = {{"äpfel", "2", 1},        {"äpfel", "3", 0}, {"Äpfel", "2", 1},
               {"apfel", "3", 1},        {"äöüéè", "4", 1}, {"äpfel", "4", 0},
               {"äpfel\n4:1:ö", "2", 0}, {"äpfel", "ö", 0}, {"birne", "5", 1}};
  for (const auto &t : tafel)
    EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE Customer = ", Wert{T(t.Kunde)},
                      " AND OrderID = ", Wert{T(t.Nummer)}}),
              t.Anzahl)
        << t.Kunde << ' ' << t.Nummer;
  EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE Customer = ", Wert{T("ZOO")}}), 1);
  EXPECT_EQ(anzahl({"SELECT * FROM Orders WHERE Customer = ", Wert{T("äPFEL")}}), 1);
}

TEST_P(Recordset_Test, eine_Sicht_wird_gelesen_wie_eine_Tabelle) {
  fuellen(3);
  Rohe_Verbindung(datei).lauf("CREATE VIEW Grosse AS SELECT * FROM Orders WHERE Amount > 2");
  Recordset r = offen("SELECT * FROM Grosse");
  EXPECT_TRUE(r.Filter("OrderID = 'A3'"));
  EXPECT_EQ(r.RecordCount(), 1);
  r.ClearFilter();
  EXPECT_EQ(r.RecordCount(), 2);
  if (ueber_Leitung()) return;  // the stand-in's views take no changes
  r.SetValue(T("Notes"), T("groß"));
  EXPECT_TRUE(r.UpdateBatch());
  EXPECT_EQ(roh("SELECT Notes FROM Orders WHERE OrderID = 'A2'"), T("groß"));
}

TEST_P(Recordset_Test, meldet_ohne_die_Werte) {
  qputenv("MARKLINK_TRACE", "1");
  testing::internal::CaptureStderr();
  Recordset r;
  r.Open({"SELECT * FROM NoSuch WHERE Card = ", Wert{T("4111111111111111")}}, verbindung);
  const std::string spur = testing::internal::GetCapturedStderr();
  qunsetenv("MARKLINK_TRACE");
  EXPECT_NE(spur.find("NoSuch"), std::string::npos) << spur;
  EXPECT_EQ(spur.find("4111"), std::string::npos) << spur;
  EXPECT_EQ(std::count(spur.begin(), spur.end(), '\n'), 1) << spur;
}

}  // namespace
}  // namespace marklink::test
