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

// At each request of a batch, before it is served, after it and in the middle of its reply.
TEST_P(Leitung_Test, abgeschnitten_an_jeder_Stelle_eines_Stapels) {
  for (const char *wie : {"trennen", "trennen-danach", "trennen-mitten"}) {
    for (int stelle = 1; stelle <= 6; ++stelle) {
      roh_lauf("DELETE FROM Orders");
      fuellen(3);
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
}

TEST_P(Leitung_Test, abgeschnitten_beim_Lesen) {
  fuellen(300);
  for (const char *wie : {"trennen", "trennen-danach", "trennen-mitten"}) {
    server->Stellen(wie, 1);
    EXPECT_EQ(anzahl("SELECT * FROM Orders WHERE Amount > 0"), 300) << wie << ": read once more";
    server->Stellen(wie, 0);
  }
}

TEST_P(Leitung_Test, ein_langsamer_Server_haelt_niemanden_laenger_auf_als_erlaubt) {
  const QString kurz = server->Verbindungstext(T("geheim"), 1);
  Recordset r;
  ASSERT_TRUE(r.Open("SELECT * FROM Orders WHERE Amount > 0", kurz));
  server->Stellen("langsam", 60000);
  QElapsedTimer uhr;
  uhr.start();
  EXPECT_FALSE(r.Open("SELECT * FROM Orders WHERE Amount > 1", kurz));
  EXPECT_LT(uhr.elapsed(), 5000);
  server->Stellen("langsam", 0);
  EXPECT_TRUE(r.Open("SELECT * FROM Orders WHERE Amount > 1", kurz));
}

TEST_P(Leitung_Test, was_der_Server_ablehnt_nennt_die_Spur) {
  fuellen(1);
  const struct {
    const char *Feld;
    QVariant Wert;
    const char *Meldung;
  } tafel[] = {{"OrderID", T("a1"), "duplicate key"},
               {"OrderID", QString(21, u'x'), "truncated"},
               {"OrderID", QVariant(), "NULL"}};
  for (const auto &z : tafel) {
    Recordset r = offen("SELECT * FROM Orders");
    r.AddNew();
    r.SetValue(T(z.Feld), z.Wert);
    r.Update();
    r.AddNew();
    r.SetValue(T("OrderID"), T("gut"));
    r.Update();
    EXPECT_FALSE(r.UpdateBatch());
    const std::string text = spur();
    EXPECT_NE(text.find(z.Meldung), std::string::npos) << text;
    EXPECT_EQ(roh("SELECT OrderID FROM Orders ORDER BY OrderID"), T("A1\ngut")) << z.Meldung;
    roh_lauf("DELETE FROM Orders WHERE OrderID = 'gut'");
  }
  Recordset r;
  EXPECT_FALSE(r.Open("SELECT * FROM Fehlt", verbindung));
  EXPECT_FALSE(r.Open("SELECT Fehlt FROM Orders", verbindung));
  const std::string text = spur();
  EXPECT_NE(text.find("Invalid object name 'Fehlt'."), std::string::npos) << text;
  EXPECT_NE(text.find("Invalid column name 'Fehlt'."), std::string::npos) << text;
}

// The server ends a transaction that lost a deadlock: nothing of the batch may stay, all of it is pending.
TEST_P(Leitung_Test, ein_verlorener_Deadlock_nimmt_den_ganzen_Stapel_mit) {
  fuellen(3);
  Recordset r = offen("SELECT * FROM Orders ORDER BY OrderID");
  for (; !r.IsEOF(); r.MoveNext()) r.SetValue(T("Customer"), T("neu"));
  server->Stellen("fehlernummer", 1205);
  server->Stellen("fehler", 2);
  EXPECT_FALSE(r.UpdateBatch());
  EXPECT_EQ(roh("SELECT count(*) FROM Orders WHERE Customer = 'neu'"), T("0"));
  EXPECT_TRUE(r.UpdateBatch()) << spur();
  EXPECT_EQ(roh("SELECT count(*) FROM Orders WHERE Customer = 'neu'"), T("3"));
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
