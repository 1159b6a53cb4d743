// Type 1 over the wire: what a server may do to a client, and how many round trips a client costs it.
#include <QElapsedTimer>
#include <QFile>

#include "db/Bestelltabelle.h"
#include "db/Treiber.h"
#include "db/Zeitpunkt.h"

namespace marklink::test {
namespace {

using namespace db;

class Leitung_Test : public Recordset_Test {
 protected:
  void SetUp() override {
    Recordset_Test::SetUp();
    qputenv("MARKLINK_TRACE", "1");
    testing::internal::CaptureStderr();
  }
  void TearDown() override {
    if (mitlesen) testing::internal::GetCapturedStderr();
    qunsetenv("MARKLINK_TRACE");
  }
  /// What was traced since the last call.
  std::string spur() {
    const std::string text = testing::internal::GetCapturedStderr();
    testing::internal::CaptureStderr();
    return text;
  }
  bool einfuegen(const QString &Nummer, const Anweisung &Sql = "SELECT * FROM Orders") {
    Recordset r;
    r.Open(Sql, verbindung);
    r.AddNew();
    r.SetValue(T("OrderID"), Nummer);
    r.Update();
    return r.UpdateBatch();
  }
  bool mitlesen = true;
};
INSTANTIATE_TEST_SUITE_P(Dialekt, Leitung_Test, testing::Values(Betriebsart::Leitung), Betriebsname);

TEST_P(Leitung_Test, der_Verbindungstext_wird_der_des_Treibers) {
  EXPECT_TRUE(Treiber_waehlen(T("SQLOLEDB.1")) == &ODBC_Treiber());
  EXPECT_TRUE(Treiber_waehlen(T("sqlite")) == &SQLite_Treiber());
  EXPECT_TRUE(Treiber_waehlen(T("Oracle")) == nullptr);
}

TEST_P(Leitung_Test, Anmelden_scheitert_still_und_die_Spur_nennt_den_Grund) {
  EXPECT_EQ(anzahl("SELECT * FROM Orders"), 0);
  const QString falsch = server->Verbindungstext(T("falsch"));
  Recordset r;
  EXPECT_FALSE(r.Open("SELECT * FROM Orders", falsch));
  EXPECT_EQ(r.RecordCount(), 0);
  const std::string text = spur();
  EXPECT_NE(text.find("Login failed for user 'sa'."), std::string::npos) << text;
  EXPECT_EQ(text.find("falsch"), std::string::npos) << text;
  for (const char *kennwort :
       {"a;b}c{ d=e", " vorn und hinten ", "{x}", "};", "}", "x;DATABASE=y", "ä€'\""}) {
    server->Kennwort_setzen(T(kennwort));
    // The driver's own text has no way to tell one that holds "};": nobody gets in, and nothing else is told.
    EXPECT_EQ(r.Open("SELECT * FROM Orders", server->Verbindungstext(T(kennwort))),
              QLatin1String(kennwort) != u"};")
        << kennwort << spur();
  }
  // Refused from now on, where it was let in: nothing comes, until it is let in again.
  server->Alle_trennen();
  EXPECT_FALSE(einfuegen(T("B1")));
  EXPECT_EQ(anzahl("SELECT * FROM Orders"), -1);
  EXPECT_NE(spur().find("Login failed"), std::string::npos);
  server->Kennwort_setzen(T("geheim"));
  EXPECT_TRUE(einfuegen(T("B1")));
  roh_lauf("DELETE FROM Orders");
  const QString kurz = server->Verbindungstext(T("geheim"), 1);
  for (const int wie : {2, 3}) {  // hangs up in the middle, never answers
    server->Stellen("ablehnen", wie);
    QElapsedTimer uhr;
    uhr.start();
    for (int i = 0; i < 20; ++i) EXPECT_FALSE(r.Open("SELECT * FROM Orders", kurz));
    EXPECT_LT(uhr.elapsed(), 4000) << "who does not answer is waited for once";
  }
  server->Stellen("ablehnen", 0);
  EXPECT_EQ(anzahl("SELECT * FROM Orders"), 0) << "other connections are not concerned";
}

TEST_P(Leitung_Test, ein_Server_der_weg_ist_und_wiederkommt) {
  fuellen(2);
  server->Alle_trennen();
  EXPECT_EQ(anzahl("SELECT * FROM Orders WHERE Amount > 0"), 2) << "cut while nobody used it";
  server->Alle_trennen();
  EXPECT_TRUE(einfuegen(T("B1"))) << "nothing of the batch was there yet";
  EXPECT_EQ(roh("SELECT count(*) FROM Orders"), T("3"));
  server.reset();
  EXPECT_EQ(anzahl("SELECT OrderID FROM Orders"), -1);
  EXPECT_FALSE(einfuegen(T("B2")));
  EXPECT_FALSE(Ausfuehren("DELETE FROM Orders", verbindung));
  EXPECT_NE(spur().find("20009"), std::string::npos) << "the driver's own words";
}

// At each request of a batch, before it is served, after it and in the middle of its reply; or the server
// falls silent at a row, at the commit.
TEST_P(Leitung_Test, abgeschnitten_an_jeder_Stelle_eines_Stapels) {
  const struct {
    const char *Wie;
    int Von, Bis;
  } tafel[] = {{"trennen", 1, 6}, {"trennen-danach", 1, 6}, {"trennen-mitten", 1, 6}, {"verstummen", 4, 5}};
  verbindung = server->Verbindungstext(T("geheim"), 1);
  for (const auto &[wie, von, bis] : tafel) {
    for (int stelle = von; stelle <= bis; ++stelle) {
      roh_lauf("DELETE FROM Orders");
      fuellen(3);
      Verbindungen_schliessen();
      Recordset r = offen("SELECT * FROM Orders ORDER BY OrderID");
      for (; !r.IsEOF(); r.MoveNext()) r.SetValue(T("Customer"), T("neu"));
      server->Stellen(wie, stelle);
      QElapsedTimer uhr;
      uhr.start();
      const bool gut = r.UpdateBatch();
      EXPECT_LT(uhr.elapsed(), 4000) << wie << stelle;
      server->Stellen(wie, 0);
      // All or nothing. Only of a commit whose answer is lost does nobody know how it ended.
      const QString neue = roh("SELECT count(*) FROM Orders WHERE Customer = 'neu'");
      const bool ganz = neue == T("3") || (neue == T("0") && !gut);
      EXPECT_TRUE(ganz) << wie << stelle << neue.toStdString();
      EXPECT_EQ(r.HasPendingChanges(), !gut) << wie << stelle;
      EXPECT_TRUE(einfuegen(T("nachher"))) << wie << stelle << ": the next routine connects again";
    }
  }
  EXPECT_NE(spur().find("HYT00"), std::string::npos) << "who is silent at the commit is waited for no longer";
}

TEST_P(Leitung_Test, abgeschnitten_beim_Lesen) {
  fuellen(300);
  for (const char *wie : {"trennen", "trennen-danach", "trennen-mitten"}) {
    server->Stellen(wie, 1);
    EXPECT_EQ(anzahl("SELECT * FROM Orders WHERE Amount > 0"), 300) << wie << ": read once more";
    server->Stellen(wie, 0);
  }
}

// An answer that does not come, to a question about the table, to a statement; besides, see above, in a
// batch.
TEST_P(Leitung_Test, ein_langsamer_Server_haelt_niemanden_laenger_auf_als_erlaubt) {
  const QString kurz = server->Verbindungstext(T("geheim"), 1);
  Recordset r;
  for (const bool bekannt : {false, true}) {
    ASSERT_TRUE(
        r.Open(bekannt ? Anweisung("SELECT * FROM Orders WHERE Amount > 0") : Anweisung("SELECT 1"), kurz));
    server->Stellen("langsam", 60000);
    QElapsedTimer uhr;
    uhr.start();
    EXPECT_FALSE(r.Open("SELECT * FROM Orders WHERE Amount > 1", kurz));
    EXPECT_LT(uhr.elapsed(), 5000) << bekannt;
    server->Stellen("langsam", 0);
    EXPECT_NE(spur().find("HYT00"), std::string::npos) << bekannt;
    EXPECT_TRUE(r.Open("SELECT * FROM Orders WHERE Amount > 1", kurz));
  }
}

// A row that the server refuses stays pending, the others are written; what costs the transaction takes all
// back.
TEST_P(Leitung_Test, was_der_Server_ablehnt_nennt_die_Spur) {
  const struct {
    const char *Feld;
    QVariant Wert;
    int Eingespeist;
    const char *Meldung;
    bool Alles = false;
  } tafel[] = {
      {"OrderID", T("a1"), 0, "2627 [FreeTDS][SQL Server]Violation of PRIMARY KEY constraint"},
      {"OrderID", QVariant(), 0, "515 [FreeTDS][SQL Server]Cannot insert the value NULL"},
      {"Notes", T("4711"), 2628, "2628 [FreeTDS][SQL Server]String or binary data would be truncated in"},
      {"Notes", T("4711"), 547, "547 [FreeTDS][SQL Server]The INSERT statement conflicted with the CHECK"},
      {"Notes", T("4711"), 1205, "1205 [FreeTDS][SQL Server]Transaction (Process ID 52)", true},
      {"Notes", T("4711"), 1222, "1222 [FreeTDS][SQL Server]Lock request time out", true}};
  fuellen(1);
  for (const auto &z : tafel) {
    Recordset r = offen("SELECT * FROM Orders");
    r.AddNew();
    r.SetValue(T("OrderID"), T("schlecht"));
    r.SetValue(T(z.Feld), z.Wert);
    r.Update();
    r.AddNew();
    r.SetValue(T("OrderID"), T("gut"));
    r.Update();
    server->Stellen("fehlernummer", z.Eingespeist);
    server->Stellen("fehler", z.Eingespeist ? 1 : 0);
    EXPECT_FALSE(r.UpdateBatch());
    EXPECT_TRUE(r.HasPendingChanges());
    const std::string text = spur();
    EXPECT_NE(text.find(z.Meldung), std::string::npos) << text;
    EXPECT_EQ(text.find("4711"), std::string::npos) << text;
    EXPECT_EQ(roh("SELECT OrderID FROM Orders ORDER BY OrderID"), z.Alles ? T("A1") : T("A1\ngut"))
        << z.Meldung;
    // Once there is no reason any more it goes out.
    EXPECT_EQ(r.UpdateBatch(), z.Eingespeist != 0) << z.Meldung;
    EXPECT_EQ(roh("SELECT count(*) FROM Orders"), z.Eingespeist ? T("3") : T("2")) << z.Meldung;
    roh_lauf("DELETE FROM Orders WHERE OrderID <> 'A1'");
  }
}

// What a column cannot take is passed over, as a number in a date is: the rest of the row is written.
TEST_P(Leitung_Test, eine_zu_kurze_Spalte_kostet_nicht_die_Zeile) {
  Recordset r = offen("SELECT * FROM Orders");
  r.AddNew();
  r.SetValue(T("OrderID"), QString(20, u'x'));
  r.SetValue(T("Customer"), T("Meier"));
  r.SetValue(T("Customer"), QString(51, u'x'));
  r.SetValue(T("Notes"), QString(9000, u'x'));
  r.SetValue(T("Date"), QDate(1752, 12, 31));
  EXPECT_TRUE(r.UpdateBatch());
  EXPECT_EQ(roh("SELECT length(OrderID), Customer, length(Notes), Date FROM Orders"), T("20|Meier|9000|"));
  EXPECT_NE(spur().find("the column cannot take the value: Customer"), std::string::npos);
}

TEST_P(Leitung_Test, fehlende_Tabellen_und_Spalten) {
  Recordset r;
  EXPECT_FALSE(r.Open("SELECT * FROM Fehlt", verbindung));
  EXPECT_FALSE(r.Open("SELECT Fehlt FROM Orders", verbindung));
  EXPECT_EQ(r.RecordCount(), 0);
  std::string text = spur();
  EXPECT_NE(text.find("Invalid object name 'Fehlt'."), std::string::npos) << text;
  EXPECT_NE(text.find("Invalid column name 'Fehlt'."), std::string::npos) << text;
  fuellen(1);
  // Gone while the table is known: what names it is refused, the next routine knows better.
  ASSERT_TRUE(Rohe_Verbindung(datei).lauf("ALTER TABLE Orders DROP COLUMN Notes"));
  const auto schreiben = [this](const char *Nummer) {
    Recordset s = offen("SELECT * FROM Orders");
    s.AddNew();
    s.SetValue(T("OrderID"), T(Nummer));
    s.SetValue(T("Notes"), T("x"));
    return s.UpdateBatch();
  };
  EXPECT_FALSE(schreiben("B1"));
  text = spur();
  EXPECT_NE(text.find("Invalid column name 'Notes'."), std::string::npos) << text;
  EXPECT_TRUE(schreiben("B2")) << spur();
  EXPECT_EQ(roh("SELECT OrderID FROM Orders ORDER BY OrderID"), T("A1\nB2"));
  ASSERT_TRUE(Rohe_Verbindung(datei).lauf("DROP TABLE Orders"));
  EXPECT_FALSE(schreiben("B3"));
  EXPECT_FALSE(r.Open("SELECT * FROM Orders", verbindung));
  EXPECT_NE(spur().find("Invalid object name 'Orders'."), std::string::npos);
}

// Types that a host's catalogue may have: old ones, ones that round or fill up, moments with parts of a
// second, one that the server itself changes. In a table without a key a row is known by all of them.
TEST_P(Leitung_Test, aendert_Spalten_jedes_Typs) {
  ASSERT_TRUE(
      roh_lauf("CREATE TABLE Alt (N int, T text, L ntext, P image, R real, M money, Z decimal(10,2), C "
               "char(5), W datetime, "
               "S smalldatetime, G date, V timestamp)"));
  ASSERT_TRUE(roh_lauf("CREATE INDEX Alt_1 ON Alt (N)"));
  ASSERT_TRUE(Rohe_Verbindung(datei).lauf(
      "CREATE TRIGGER Wie_ein_Server AFTER UPDATE ON Alt BEGIN UPDATE Alt SET R = marklink_wandlung('real', "
      "R), "
      "M = marklink_wandlung('money', M), Z = marklink_wandlung('decimal(10,2)', Z), "
      "C = substr(C || '     ', 1, 5), S = marklink_wandlung('smalldatetime', S), "
      "G = marklink_wandlung('date', G), V = randomblob(8) WHERE rowid = new.rowid; END"));
  const struct {
    const char *Feld;
    std::vector<QVariant> Werte;
    const char *Fremdes;
  } tafel[] = {{"T", {T("Ä"), T("ä"), T(""), QVariant(), T("t")}, "T = 'T'"},
               {"L", {T("x").repeated(5000), QVariant(), T("l")}, "L = 'L'"},
               {"P", {QByteArray("1"), QVariant(), QByteArray("\0", 1)}, "P = 'x'"},
               {"R", {0.1, 1.0 / 3, QVariant(), -7.7}, "R = 2"},
               {"M", {0.12345, -1e9 / 7, QVariant(), 1.00005}, "M = 2"},
               {"Z", {0.125, 99.999, QVariant(), 1.0 / 3}, "Z = 2"},
               {"C", {T("a"), T(""), QVariant(), T("abc")}, "C = 'x'"},
               {"W",
                {QDateTime(QDate(2024, 1, 2), QTime(3, 4, 5)), QVariant(), QDate(2024, 1, 2)},
                "W = '2024-01-02 00:00:01'"},
               {"S",
                {QDateTime(QDate(2024, 1, 2), QTime(3, 4, 31)), QVariant(), QDate(2024, 1, 2)},
                "S = '2024-01-02 00:01:00'"},
               {"G", {QDateTime(QDate(2024, 1, 2), QTime(3, 4, 31)), QVariant()}, "G = '2024-01-03'"}};
  for (const auto &z : tafel) {
    roh_lauf("DELETE FROM Alt");
    ASSERT_TRUE(Rohe_Verbindung(datei).lauf(
        "INSERT INTO Alt VALUES (1,'x','y',x'09',0.5,1.5,2.5,'ab   ','2024-03-05 12:30:59.997',"
        "'2024-03-05 12:31:00','2024-03-05 00:00:00',x'00')"));
    Recordset r = offen("SELECT * FROM Alt");
    ASSERT_TRUE(r.Filter("N = 1"));
    for (const QVariant &wert : z.Werte) {
      r.SetValue(T(z.Feld), wert);
      r.Update();
      r.Filter("N = 1");
      ASSERT_EQ(r.RecordCount(), 1) << z.Feld << wert.toString().toStdString();
      EXPECT_TRUE(r.UpdateBatch()) << z.Feld << wert.toString().toStdString() << spur();
    }
    r.SetValue(T("N"), 7);
    EXPECT_TRUE(r.UpdateBatch()) << z.Feld << spur();
    ASSERT_TRUE(roh_lauf(("UPDATE Alt SET " + std::string(z.Fremdes)).c_str())) << z.Feld << spur();
    r.SetValue(T("N"), 8);
    EXPECT_FALSE(r.UpdateBatch()) << z.Feld << ": changed by somebody else";
    EXPECT_EQ(roh("SELECT N FROM Alt"), T("7"));
  }
  EXPECT_EQ(offen("SELECT * FROM Alt").Type(T("Z")), Feldart::Gleitkomma);
}

TEST_P(Leitung_Test, Bilder_und_lange_Texte) {
  QByteArray bild(5 << 20, '\0');
  for (qsizetype i = 0; i < bild.size(); ++i) bild[i] = static_cast<char>(i * 7 >> 3);
  const QString lang = QString::fromUtf8("Größe € \xF0\x9F\x98\x80 ").repeated(30000);
  Recordset r = offen("SELECT * FROM Orders");
  r.AddNew();
  r.SetValue(T("OrderID"), T("1"));
  r.SetValue(T("Notes"), lang);
  r.SetValue(T("Picture"), bild);
  ASSERT_TRUE(r.UpdateBatch());
  Recordset s = offen("SELECT Notes, Picture FROM Orders WHERE OrderID = '1'");
  EXPECT_EQ(s.Fields().size(), 2);
  EXPECT_TRUE(s.Text(T("Notes")) == lang);
  EXPECT_TRUE(s.Value(T("Picture")).toByteArray() == bild);
  s.SetValue(T("Picture"), QVariant());
  EXPECT_TRUE(s.UpdateBatch());
  s.SetValue(T("Picture"), QByteArray("\0", 1));
  EXPECT_TRUE(s.UpdateBatch());
  EXPECT_EQ(roh("SELECT hex(Picture) FROM Orders"), T("00"));
}

TEST_P(Leitung_Test, mehr_Werte_als_der_Server_nimmt) {
  fuellen(3);
  QStringList viele;
  for (int i = 2; i < 5000; ++i) viele.append(u'a' + QString::number(i));
  EXPECT_EQ(
      anzahl({"SELECT * FROM Orders WHERE Amount > ", Zahl(1), " AND OrderID IN (", Werteliste{viele}, ")"}),
      2)
      << spur();
}

// Look up, add or change, send, one by one: as orders are staged.
TEST_P(Leitung_Test, eine_abgelegte_Zeile_kostet_drei_Umlaeufe) {
  fuellen(500);
  constexpr int Anzahl = 1000;
  server->Stellen("anfragen", 0);
  Recordset r = offen("SELECT * FROM Orders");
  for (int i = 1; i <= Anzahl; ++i) {
    const QString nummer = u'A' + QString::number(i);
    r.ClearFilter();
    r.Filter({"OrderID = ", Wert{nummer}});
    if (r.RecordCount() == 0) r.AddNew();
    r.SetValue(T("OrderID"), nummer);
    r.SetValue(T("Notes"), T("neu"));
    r.Update();
    ASSERT_TRUE(r.UpdateBatch());
  }
  EXPECT_LE(server->Zahl("anfragen"), 3 * Anzahl + 10);
  EXPECT_EQ(roh("SELECT count(Notes) FROM Orders"), T("1000"));
}

}  // namespace
}  // namespace marklink::test
