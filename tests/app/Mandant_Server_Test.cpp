// New clients on a server: what is there afterwards, and that a failed one leaves nothing behind.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QThread>

#include "Launcher.h"
#include "db/Schema.h"
#include "host/Ini.h"
#include "support/Datenbank_Test.h"
#include "support/Shop_Attrappe.h"
#include "support/Testdateien.h"

namespace marklink::test {
namespace {

class Mandant_Server_Test : public testing::Test {
 protected:
  Mandant_Server_Test() {
    Server.Kennwort_setzen(Kennwort);
    L.Umgebung(QStringLiteral("MARKLINK_KENNWORT"), Kennwort);
  }

  QStringList Anlegen(const char *Was = "mandant anlegen Test") const {
    return Worte(Was) + Worte("--typ 1 --anmeldung sa --wartezeit 2 --server")
           << QStringLiteral("127.0.0.1,%1").arg(Server.Port());
  }
  QString Auf_dem_Server(const char *Sql) const { return Rohe_Verbindung(Datei).lesen(Sql); }
  QString Tabellen() const {
    return Auf_dem_Server(
        "SELECT COUNT(*) FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'");
  }
  /// All files of the program folder with what is in them.
  QStringList Ordner() const {
    QStringList alle;
    for (const QString &name :
         QDir(L.Ordner()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
      alle << name << QString::fromLatin1(Datei_lesen(L.Ordner() + u'/' + name));
    return alle;
  }
  /// No client, no tables.
  void Von_vorn() const {
    QDir(L.Ordner()).removeRecursively();
    for (const db::Tabelle &tabelle : db::Schema())
      Rohe_Verbindung(Datei).lauf(QByteArray("DROP TABLE IF EXISTS [") + tabelle.Name + "]");
    ASSERT_EQ(Tabellen(), QStringLiteral("0"));
  }
  /// Either the client is there as a whole or nothing of it.
  void Ganz_oder_gar_nicht(const Ergebnis &E, const QStringList &Vorher) const {
    if (E.Ausgang == 0) {
      EXPECT_EQ(L.Starten("einstellung lesen Program Country").Ausgabe, QStringLiteral("Deutschland\n"));
      EXPECT_EQ(Auf_dem_Server("SELECT Description FROM Employees"), QStringLiteral("Chef"));
      return;
    }
    EXPECT_EQ(E.Ausgang, 1);
    EXPECT_TRUE(E.Fehler.startsWith(QStringLiteral("marklink: Der Mandant 'Test' wurde nicht angelegt: ")));
    EXPECT_EQ(E.Fehler.count(u'\n'), 1) << E.Fehler.toStdString();
    EXPECT_EQ(Tabellen(), QStringLiteral("0")) << E.Fehler.toStdString();
    EXPECT_EQ(Ordner(), Vorher) << E.Fehler.toStdString();
  }

  const QString Kennwort = QStringLiteral("ge;heim={}");
  Launcher L;
  const QString Datei = L.Wurzel() + QStringLiteral("/server.db");
  mutable SqlServer_Attrappe Server{Datei};
};

TEST_F(Mandant_Server_Test, Demomandant_wie_auf_der_eingebetteten_Datenbank) {
  Shop_Attrappe shop;
  shop.Antworten(
      "get_customers",
      "<?xml version=\"1.0\" encoding=\"windows-1252\"?><CUSTOMERS><CUSTOMERS_DATA><EMAIL>neu</EMAIL>"
      "<LASTNAME>Gro\xDF</LASTNAME><FIRSTNAME>J\xFCrgen</FIRSTNAME><COUNTRY>DE</COUNTRY>"
      "</CUSTOMERS_DATA></CUSTOMERS>");
  const QByteArray demo = "mandant demo --port " + QByteArray::number(shop.Port());
  const Ergebnis e = L.Starten(Anlegen(demo));
  ASSERT_EQ(e.Ausgang, 0) << e.Fehler.toStdString();
  EXPECT_EQ(e.Fehler, QString());
  EXPECT_FALSE(QFile::exists(L.Datei("Demo.mdb")));
  const QByteArray ini = Datei_lesen(L.Datei("varda.ini"));
  for (const char *zeile :
       {"sql=SQLOLEDB.1\r\n", "UserID=sa\r\n", "Password=ge;heim={}\r\n", "LoginTimeout=2\r\n"})
    EXPECT_TRUE(ini.contains(zeile)) << zeile;
  const Launcher eingebettet;
  ASSERT_EQ(eingebettet.Starten((demo + " --typ 1").constData()).Ausgang, 0);
  const QString mdb = eingebettet.Datei("Demo.mdb");
  for (const db::Tabelle &tabelle : db::Schema()) {
    QByteArrayList spalten;
    for (const db::Spalte &spalte : tabelle.Spalten) spalten << QByteArray("[") + spalte.Name + "]";
    // The settings name their folder, and the run that made them.
    const QByteArray sql =
        "SELECT " + spalten.join(',') + " FROM [" + tabelle.Name + "]" +
        (qstrcmp(tabelle.Name, "Options") == 0 ? " WHERE Key NOT IN ('Anlage', 'DocumentPath', 'file')" : "");
    EXPECT_EQ(Auf_dem_Server(sql), Rohe_Verbindung(mdb).lesen(sql)) << tabelle.Name;
  }
  for (const QString &datei : {Datei, mdb})
    ASSERT_TRUE(Rohe_Verbindung(datei).lauf(
        "INSERT INTO WebshopOrdersXTC (OrderID, CustomerID, Email, Date, Amount, Payment, Shipping, "
        "Positions, "
        "DeliveryName, DeliveryStreet, DeliveryPostcode, DeliveryCity, DeliveryCountry, Invoice) VALUES "
        "('1001', "
        "'7', 'neu', '2024-06-10 00:00:00', 66.01, 'PayPal', 'Deutsche Post', '188~1~GG1090~Messer~0~12,19~×"
        "129~2~KU1070~Kanne~0~26,91~', 'Jürgen Groß', 'Am Markt 3', '01067', 'Dresden', 'DE', 0)"));
  for (const char *zeile :
       {"kunden anlegen 1001", "belege auftrag 1001", "belege rechnung 1001", "bestellungen rechnung 1001",
        "posten RE-2024-00014", "preis KT1020 K20055 12", "einstellung schreiben easylog Client 07",
        "einstellung lesen easylog client", "versand liste --zeitraum 0"}) {
    const Ergebnis dort = L.Starten(zeile), hier = eingebettet.Starten(zeile);
    EXPECT_EQ(dort.Ausgang, 0) << zeile << dort.Fehler.toStdString();
    EXPECT_EQ(dort.Ausgabe, hier.Ausgabe) << zeile;
    EXPECT_EQ(dort.Fehler, hier.Fehler) << zeile;
  }
  EXPECT_TRUE(L.Starten("posten RE-2024-00014").Ausgabe.contains(QStringLiteral("85,60")));
}

TEST_F(Mandant_Server_Test, zwei_zugleich_im_selben_Katalog) {
  Launcher anderer;
  anderer.Umgebung(QStringLiteral("MARKLINK_KENNWORT"), Kennwort);
  const auto eins = L.Anstossen(Anlegen());
  const auto zwei = anderer.Anstossen(Anlegen() << QStringLiteral("--ordner") << anderer.Ordner()
                                                << QStringLiteral("--wartezeit") << QStringLiteral("20"));
  const int gelungen =
      int(Launcher::Abwarten(*eins).Ausgang == 0) + int(Launcher::Abwarten(*zwei).Ausgang == 0);
  EXPECT_EQ(gelungen, 1);
  EXPECT_EQ(Auf_dem_Server("SELECT COUNT(*) FROM Employees"), QStringLiteral("1"));
}

TEST_F(Mandant_Server_Test, jede_Ursache_wird_genannt) {
  const struct {
    const char *Stoerung;
    int Wert;
    const char *Grund, *Meldung_des_Servers;
  } faelle[] = {
      {"ablehnen", 1, "lehnt die Anmeldung ab", " 18456 "},
      {"ablehnen", 2, "ist nicht zu erreichen", " 20017 "},
      {"ablehnen", 4, "CREATE DATABASE [Test] COLLATE Latin1_General_CI_AS", " 4060 "},
      {"fehler", 3, "konnten die Tabellen nicht angelegt werden", " 547 "},
      {"fehler", 250, "konnten die Tabellen nicht angelegt werden", " 547 "},
      {"trennen", 100, "konnten die Tabellen nicht angelegt werden", " 20017 "},
  };
  Server.Stellen("fehlernummer", 547);
  for (const auto &fall : faelle) {
    SCOPED_TRACE(fall.Stoerung);
    Server.Stellen(fall.Stoerung, fall.Wert);
    const Ergebnis e = L.Starten(Anlegen());
    EXPECT_EQ(e.Ausgang, 1);
    EXPECT_TRUE(e.Fehler.contains(QString::fromUtf8(fall.Grund))) << e.Fehler.toStdString();
    Ganz_oder_gar_nicht(e, {});
    Server.Stellen(fall.Stoerung, fall.Wert);
    L.Umgebung(QStringLiteral("MARKLINK_TRACE"), QStringLiteral("1"));
    const QString spur = L.Starten(Anlegen()).Fehler;
    EXPECT_TRUE(spur.contains(QLatin1String(fall.Meldung_des_Servers))) << spur.toStdString();
    EXPECT_FALSE(spur.contains(Kennwort)) << spur.toStdString();
    L.Umgebung(QStringLiteral("MARKLINK_TRACE"), QString());
    Server.Stellen(fall.Stoerung, 0);
  }
}

TEST_F(Mandant_Server_Test, abgerissen_an_jeder_Stelle) {
  ASSERT_EQ(L.Starten(Anlegen()).Ausgang, 0);
  const int alle = Server.Zahl("anfragen");
  // The end of the transaction is among the last requests; behind it the tables are read again. FreeTDS
  // itself aborts where a reply is cut within its list of columns, so nothing is cut in its middle there.
  const struct {
    const char *Wie;
    std::vector<int> Stellen;
  } faelle[] = {
      {"trennen", {1, 150, alle}},
      {"trennen-danach", {150, alle - 6, alle - 5, alle - 4, alle - 3, alle}},
      {"trennen-mitten", {150}},
  };
  int gelungen = 0;
  for (const auto &fall : faelle) {
    for (const int stelle : fall.Stellen) {
      SCOPED_TRACE(fall.Wie + (' ' + std::to_string(stelle)));
      Von_vorn();
      Server.Stellen(fall.Wie, stelle);
      const Ergebnis e = L.Starten(Anlegen());
      Server.Stellen(fall.Wie, 0);
      gelungen += e.Ausgang == 0 ? 1 : 0;
      Ganz_oder_gar_nicht(e, {});
    }
  }
  EXPECT_GE(gelungen, 2) << "an answer that got lost at the end is found out";
}

TEST_F(Mandant_Server_Test, was_da_ist_bleibt) {
  const auto scheitert = [&](const QStringList &argumente, const char *grund) {
    const QStringList vorher = Ordner();
    const QString tabellen = Tabellen();
    const Ergebnis e = L.Starten(argumente);
    EXPECT_EQ(e.Ausgang, 1);
    EXPECT_TRUE(e.Fehler.contains(QString::fromUtf8(grund))) << e.Fehler.toStdString();
    EXPECT_EQ(e.Fehler.count(u'\n'), 1) << e.Fehler.toStdString();
    EXPECT_EQ(Ordner(), vorher);
    EXPECT_EQ(Tabellen(), tabellen);
  };
  ASSERT_TRUE(
      Rohe_Verbindung(Datei).lauf("CREATE TABLE Units (Description); INSERT INTO Units VALUES ('fremd')"));
  scheitert(Anlegen(), "gibt es schon Tabellen eines Mandanten");
  EXPECT_EQ(Auf_dem_Server("SELECT * FROM Units"), QStringLiteral("fremd"));
  ASSERT_TRUE(Rohe_Verbindung(Datei).lauf("DROP TABLE Units"));

  ASSERT_TRUE(QDir().mkpath(L.Datei("mandanten.ini")));  // a folder where the list should be
  scheitert(Anlegen(), "Die Mandantenliste");
  ASSERT_TRUE(QDir(L.Ordner()).removeRecursively());

  ASSERT_EQ(L.Starten("mandant anlegen Eingebettet --typ 1").Ausgang, 0);
  scheitert(Anlegen(), "der Mandant 'Eingebettet' liegt in der eingebetteten Datenbank");
  Von_vorn();
  ASSERT_EQ(L.Starten(Anlegen("mandant anlegen Erster")).Ausgang, 0);
  scheitert(Anlegen(), "gibt es schon Tabellen eines Mandanten");
  scheitert(Worte("mandant anlegen Test --typ 1"), "gibt es schon Tabellen");  // by the host configuration
  scheitert(Anlegen() << Worte("--server anderswo"), "liegt auf dem Server '127.0.0.1,");
  scheitert(Anlegen() << Worte("--anmeldung ein_anderer"), "Anmeldung 'sa'");
  EXPECT_EQ(L.Starten("mandant anlegen Ohne --typ 0").Ausgang, 0) << "a file needs no server";

  Von_vorn();
  L.Umgebung(QStringLiteral("MARKLINK_KENNWORT"), QStringLiteral("ge};heim"));
  scheitert(Anlegen(), "Zeichen");
  ASSERT_TRUE(QDir().mkpath(L.Ordner()));
  Datei_schreiben(L.Datei("varda.ini"), "[Provider]\r\nsql=Fremd\r\n");
  scheitert(Anlegen(), "fremden Datenbankanbieter");
}

TEST_F(Mandant_Server_Test, abgeschossen_und_noch_einmal) {
  Server.Stellen("langsam", 5);
  const auto prozess = L.Anstossen(Anlegen());
  for (int i = 0; i < 500 && Server.Zahl("anfragen") < 170; ++i) QThread::msleep(10);
  prozess->kill();
  prozess->waitForFinished();
  Server.Stellen("langsam", 0);
  for (int i = 0; i < 500 && Server.Zahl("verbindungen") > 0; ++i) QThread::msleep(10);
  EXPECT_EQ(Tabellen(), QStringLiteral("0"));
  Ganz_oder_gar_nicht(L.Starten(Anlegen()), {});
  EXPECT_EQ(Datei_lesen(L.Datei("mandanten.ini")).count('['), 1);
}

TEST_F(Mandant_Server_Test, Optionen) {
  const struct {
    const char *Zeile, *Fehler;
  } faelle[] = {
      {"--typ 1 --server x", "--anmeldung BENUTZER"},
      {"--typ 1 --server x --anmeldung a --integriert", "eine von"},
      {"--server x --anmeldung a", "'--typ 1'"},
      {"--typ 1 --anmeldung a", "braucht '--server'"},
      {"--typ 1 --integriert", "braucht '--server'"},
      {"--typ 1 --server x --integriert --wartezeit 0", "von 1 bis"},
  };
  for (const auto &fall : faelle) {
    const Ergebnis e = L.Starten(Worte("mandant anlegen Test") << Worte(fall.Zeile));
    EXPECT_EQ(e.Ausgang, 2) << fall.Zeile;
    EXPECT_TRUE(e.Fehler.contains(QString::fromUtf8(fall.Fehler))) << e.Fehler.toStdString();
  }
}

TEST(Schema_Test, SQL_Server_nimmt_alle_Schluessel) {
  // 900 bytes in a primary key; before 2016 in an index, too.
  for (const db::Tabelle &tabelle : db::Schema()) {
    auto alle = tabelle.Indizes;
    alle.push_back(tabelle.Schluessel);
    for (const auto &spalten : alle) {
      int bytes = 0;
      for (const char *name : spalten) {
        const auto spalte = std::find_if(tabelle.Spalten.begin(), tabelle.Spalten.end(),
                                         [&](const db::Spalte &s) { return qstricmp(s.Name, name) == 0; });
        ASSERT_NE(spalte, tabelle.Spalten.end()) << tabelle.Name << '.' << name;
        EXPECT_TRUE(spalte->Typ != db::Spaltentyp::Memo && spalte->Typ != db::Spaltentyp::Binaer)
            << tabelle.Name << '.' << name;
        bytes += spalte->Typ == db::Spaltentyp::Text ? 2 * spalte->Laenge : 8;
      }
      EXPECT_LE(bytes, 900) << tabelle.Name;
    }
  }
}

}  // namespace
}  // namespace marklink::test
