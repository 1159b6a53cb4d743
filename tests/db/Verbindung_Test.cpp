// Connections and files: what an ordinary tool sees, and files that are locked, damaged, gone or read-only.
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>

#include "db/Bestelltabelle.h"

namespace marklink::test {
namespace {

using namespace db;
class Verbindung_Test : public Recordset_Test {
 protected:
  bool einfuegen(const char *Nummer) {
    Recordset r;
    r.Open("SELECT * FROM Orders", verbindung);
    r.AddNew();
    r.SetValue(T("OrderID"), T(Nummer));
    r.Update();
    return r.UpdateBatch();
  }
};
MARKLINK_BEIDE_DIALEKTE(Verbindung_Test);
/// What holds on a server, too.
class Menge_Test : public Verbindung_Test {};
MARKLINK_ALLE_BETRIEBSARTEN(Menge_Test);

TEST(Verbindung, liest_beide_Formen) {
  const Verbindungsdaten jet =
      Verbindung_lesen(T("Provider=SQLite;Data Source=C:\\a=b.mdb;Jet OLEDB:Database Password=481902"));
  EXPECT_EQ(jet.Dialekt, Dialekt::Jet);
  EXPECT_EQ(jet.Quelle, T("C:\\a=b.mdb"));
  EXPECT_EQ(jet.Passwort, T("481902"));
  const Verbindungsdaten sql =
      Verbindung_lesen(T("provider=x;User ID=sa;Password=p;Initial Catalog=demo;Data Source=srv;Persist "
                         "Security Info=False;Connect Timeout=5"));
  EXPECT_EQ(sql.Dialekt, Dialekt::SqlServer);
  EXPECT_EQ(sql.Katalog + sql.Quelle + sql.Benutzer + sql.Passwort, T("demosrvsap"));
  EXPECT_EQ(sql.Wartezeit, 5);
  // In the order of the system's own texts a value may hold what parts the others.
  for (const char *wert :
       {"a;b}c{ d=e", " p ", ";", "x;Initial Catalog=y;Data Source=z", ";Connect Timeout=9"}) {
    const Verbindungsdaten d =
        Verbindung_lesen(T("Provider=x;User ID=s;a;Password=%1;Initial Catalog=demo;Data Source=srv;Persist "
                           "Security Info=False;Connect Timeout=5")
                             .arg(T(wert)));
    EXPECT_EQ(d.Passwort, T(wert));
    EXPECT_EQ(d.Benutzer + d.Katalog + d.Quelle, T("s;ademosrv")) << wert;
    EXPECT_EQ(d.Wartezeit, 5) << wert;
  }
  EXPECT_EQ(Verbindung_lesen(T("Provider=x;Data Source=a;b.mdb;Jet OLEDB:Database Password=1")).Quelle,
            T("a;b.mdb"));
  EXPECT_EQ(Verbindung_lesen(T("Provider=x;Data Source=srv;Initial Catalog=demo;Integrated Security=SSPI;"
                               "Connect Timeout=7;"))
                .Wartezeit,
            7);
}

TEST_P(Verbindung_Test, die_Datei_gehoert_auch_anderen_Programmen) {
  Recordset r = offen("SELECT * FROM Orders");
  r.AddNew();
  r.SetValue(T("OrderID"), T("5"));
  r.SetValue(T("Customer"), T("Groß"));
  r.SetValue(T("Invoice"), true);
  r.SetValue(T("Date"), QDate(2024, 5, 6));
  ASSERT_TRUE(r.UpdateBatch());
  Rohe_Verbindung andere(datei);
  EXPECT_EQ(andere.lesen("SELECT Customer, Invoice <> 0, Date FROM Orders WHERE OrderID='5' AND Customer = "
                         "'GROß' ORDER BY Customer"),
            T("Groß|1|2024-05-06 00:00:00"));
  EXPECT_TRUE(andere.lauf("INSERT INTO Orders (OrderID, Customer) VALUES ('6', 'x')"));
  EXPECT_TRUE(andere.lauf("UPDATE Orders SET Customer = 'y' WHERE OrderID = '6'; REINDEX; VACUUM"));
  EXPECT_EQ(offen("SELECT * FROM Orders WHERE OrderID = '6'").Text(T("Customer")), T("y"));
  EXPECT_EQ(andere.lesen("SELECT count(*) FROM sqlite_master WHERE sql LIKE '%MARKLINK%'"), T("0"));
}

TEST_P(Menge_Test, mehrere_Mengen_stehen_zugleich) {
  fuellen(3);
  Recordset aussen = offen("SELECT * FROM Orders ORDER BY OrderID");
  QString folge;
  for (; !aussen.IsEOF(); aussen.MoveNext()) {
    Recordset innen = offen("SELECT * FROM Orders WHERE OrderID = 'A1'");
    innen.SetValue(T("Amount"), innen.Number(T("Amount")) + 1);
    ASSERT_TRUE(innen.UpdateBatch());
    folge += aussen.Text(T("OrderID"));
  }
  EXPECT_EQ(folge, T("A1A2A3"));
  EXPECT_EQ(roh("SELECT Amount FROM Orders WHERE OrderID = 'A1'"), T("4.5"));
}

TEST_P(Verbindung_Test, wartet_auf_eine_gesperrte_Datei_nur_einmal) {
  fuellen(1);
  QElapsedTimer uhr;
  {
    Rohe_Verbindung andere(datei);
    ASSERT_TRUE(andere.lauf("BEGIN IMMEDIATE; INSERT INTO Orders (OrderID) VALUES ('X')"));
    uhr.start();
    EXPECT_FALSE(einfuegen("B1"));
    EXPECT_GE(uhr.elapsed(), 1500);
    EXPECT_EQ(anzahl("SELECT * FROM Orders WHERE OrderID = 'A1'"), 1);  // readers are not hindered
    uhr.start();
    for (int i = 0; i < 50; ++i) {
      EXPECT_FALSE(einfuegen("B1"));
      EXPECT_EQ(anzahl("SELECT OrderID FROM Orders"), 1);
    }
    EXPECT_LT(uhr.elapsed(), 1500);
    andere.lauf("ROLLBACK");
  }
  EXPECT_TRUE(einfuegen("B1"));
}

TEST_P(Verbindung_Test, eine_fehlende_Datei_wird_nicht_angelegt) {
  Verbindungen_schliessen(verbindung);
  ASSERT_TRUE(QFile::remove(datei));
  EXPECT_EQ(anzahl("SELECT * FROM Orders"), -1);
  EXPECT_FALSE(QFile::exists(datei));
  EXPECT_TRUE(Datenbank_anlegen_mit(Testtabellen(), verbindung));
  EXPECT_FALSE(Datenbank_anlegen_mit(Testtabellen(), verbindung)) << "an existing file stays as it is";
  EXPECT_TRUE(einfuegen("1"));
}

TEST_P(Verbindung_Test, merkt_dass_die_Datei_ersetzt_wurde) {
  fuellen(2);
  EXPECT_EQ(anzahl("SELECT OrderID FROM Orders"), 2);
  const QString alt = datei + T(".alt");
  ASSERT_TRUE(QFile::rename(datei, alt));
  for (const char *endung : {"-wal", "-shm"}) QFile::remove(datei + T(endung));
  EXPECT_EQ(anzahl("SELECT OrderID FROM Orders"), -1);
  ASSERT_TRUE(Datenbank_anlegen_mit(Testtabellen(), verbindung));
  EXPECT_EQ(anzahl("SELECT OrderID FROM Orders"), 0);
  EXPECT_TRUE(einfuegen("neu"));
  EXPECT_EQ(roh("SELECT OrderID FROM Orders"), T("neu"));
}

TEST_P(Verbindung_Test, merkt_dass_eine_Tabelle_umgebaut_wurde) {
  fuellen(1);
  EXPECT_EQ(offen("SELECT * FROM Orders").Fields().size(), 9);
  EXPECT_EQ(offen("SELECT * FROM Orders WHERE OrderID = 'A1'").RecordCount(), 1);
  Rohe_Verbindung(datei).lauf("ALTER TABLE Orders ADD COLUMN Extra VARCHAR(5) DEFAULT 'e'");
  for (const Anweisung &sql :
       {Anweisung("SELECT * FROM Orders"), Anweisung("SELECT * FROM Orders WHERE OrderID = 'A1'")}) {
    Recordset r = offen(sql);
    EXPECT_EQ(r.Fields().size(), 10);
    EXPECT_EQ(r.Text(T("Extra")), T("e"));
    r.SetValue(T("Extra"), T("f"));
    EXPECT_TRUE(r.UpdateBatch());
    Rohe_Verbindung(datei).lauf("UPDATE Orders SET Extra = 'e'");
  }
}

TEST_P(Verbindung_Test, eine_beschaedigte_Datei_scheitert_still) {
  Verbindungen_schliessen(verbindung);
  QFile muell(datei);
  ASSERT_TRUE(muell.open(QIODevice::WriteOnly));
  muell.write(QByteArray(20000, 'x'));
  muell.close();
  EXPECT_EQ(anzahl("SELECT * FROM Orders"), -1);
  EXPECT_FALSE(einfuegen("1"));
  EXPECT_FALSE(Ausfuehren("DELETE FROM Orders", verbindung));
  ASSERT_TRUE(muell.open(QIODevice::ReadOnly));
  EXPECT_EQ(muell.readAll(), QByteArray(20000, 'x'));
}

// In a child that is nobody: the superuser may write everything.
TEST_P(Verbindung_Test, ohne_Schreibrecht_liest_es_trotzdem) {
  fuellen(2);
  for (const bool auch_Ordner : {false, true}) {
    Verbindungen_schliessen();
    ASSERT_EQ(chmod(QFile::encodeName(datei).constData(), 0444), 0);
    ASSERT_EQ(chmod(QFile::encodeName(ordner.path()).constData(), auch_Ordner ? 0555 : 0777), 0);
    const pid_t kind = fork();
    if (kind == 0) {
      if (getuid() == 0 && setuid(65534) != 0) _exit(9);
      const bool gelesen = anzahl("SELECT OrderID FROM Orders") == 2 && anzahl("SELECT * FROM Orders") == 2;
      _exit((gelesen ? 0 : 1) + (einfuegen("neu") ? 2 : 0));
    }
    int stand = 0;
    ASSERT_EQ(waitpid(kind, &stand, 0), kind);
    EXPECT_TRUE(WIFEXITED(stand) && WEXITSTATUS(stand) == 0) << WEXITSTATUS(stand) << auch_Ordner;
  }
  chmod(QFile::encodeName(ordner.path()).constData(), 0755);
}

// One by one, in a table with a key and in one without: neither time nor memory grows with the table, and the
// table is never read.
TEST_P(Menge_Test, einzelnes_Ablegen_waechst_nicht_mit_der_Tabelle) {
  const struct {
    const char *Tabelle, *Feld, *Inhalt;
  } tafel[] = {{"Orders", "OrderID", "Notes"}, {"Options", "Section", "Value"}};
  for (const auto &[tabelle, feld, inhalt] : tafel) {
    Rohe_Verbindung(datei).lauf(
        ("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 50000) INSERT INTO " +
         std::string(tabelle) + " (" + feld + ") SELECT 'V' || i FROM n")
            .c_str());
    const QString alles = T("SELECT * FROM ") + T(tabelle);
    Recordset r = offen({Teiltext{alles}, ""});
    int gelesen = 0;
    Beobachter_setzen([&](const QString &Text) { gelesen += Text == alles; });
    QElapsedTimer uhr;
    uhr.start();
    for (int i = 0; i < 1000; ++i) {
      const QString nummer = (i % 2 ? T("V%1") : T("N%1")).arg(i);
      r.ClearFilter();
      ASSERT_TRUE(r.Filter({Teiltext{T(feld)}, " = ", Wert{nummer}}));
      ASSERT_EQ(r.RecordCount(), i % 2);
      if (r.RecordCount() == 0) r.AddNew();
      r.SetValue(T(feld), nummer);
      r.SetValue(T(inhalt), T("neu"));
      r.Update();
      ASSERT_TRUE(r.UpdateBatch());
    }
    EXPECT_EQ(gelesen, 0) << tabelle;
    EXPECT_LT(uhr.elapsed(), 10000) << tabelle;
    EXPECT_EQ(roh(("SELECT count(*), count(" + std::string(inhalt) + ") FROM " + tabelle).c_str()),
              T("50500|1000"));
  }
}

TEST_P(Menge_Test, ein_Filter_in_einer_Schleife_laeuft_die_Menge_nicht_ab) {
  Rohe_Verbindung(datei).lauf(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 50000) "
      "INSERT INTO Orders (OrderID, Notes, Colour) SELECT 'V' || i, 'Hinweis ' || i, i FROM n");
  Recordset r = offen("SELECT * FROM Orders");
  QElapsedTimer uhr;
  uhr.start();
  int treffer = 0;
  for (int i = 1; i <= 20000; ++i) {
    // Walking would be 10^9 comparisons.
    r.Filter({"Notes = ", Wert{T("hinweis %1").arg(i)}, " AND Colour = ", Zahl(i)});
    treffer += r.RecordCount();
    r.SetValue(T("Notes"), T("erledigt %1").arg(i));
    r.Update();
  }
  EXPECT_EQ(treffer, 20000);
  EXPECT_LT(uhr.elapsed(), 10000);
  r.Filter("Notes = 'erledigt 77'");
  EXPECT_EQ(r.Text(T("OrderID")), T("V77"));
  EXPECT_TRUE(r.UpdateBatch());
}

}  // namespace
}  // namespace marklink::test
