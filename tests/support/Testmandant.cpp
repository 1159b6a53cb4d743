// A client in a temporary folder.
#include "Testmandant.h"

#include <QDir>
#include <QFile>

#include "db/Verbindung.h"
#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Ini.h"
#include "host/Kontext.h"
#include "host/Programmstart.h"

namespace marklink::test {
namespace {

const QString Firma = QStringLiteral("Test");

}  // namespace

Testmandant::Testmandant(int Typ)
    : uhr(Zeitpunkt(QDate(2024, 6, 15), QTime(10, 30))), Typ_(Typ), Tmp_vorher_(qgetenv("TMPDIR")) {
  // Reply files hold customers' data.
  const QString temp = Ordner() + QStringLiteral("temp");
  QDir().mkpath(temp);
  qputenv("TMPDIR", QFile::encodeName(temp));
  Uhr_setzen(&uhr);
  Programmordner_setzen(Ordner_.path());
  Host_einstellen("files", "uiffile", QStringLiteral("mandanten.ini"));
  Host_einstellen("Provider", "access", QStringLiteral("SQLite"));
  Host_einstellen("Provider", "sql", QStringLiteral("SQLite"));
  Host_einstellen("Connection", "DataSource", Ordner_.path());
  Host_einstellen("Connection", "Authentification", QStringLiteral("0"));
  Host_einstellen("Connection", "LoginTimeout", QStringLiteral("30"));
  Host_einstellen("Marklink", "exportfile",
                  QStringLiteral("marklink_test_%1.xml").arg(QDir(Ordner_.path()).dirName()));
  Host_einstellen("Marklink", "exportfolder", QStringLiteral("marklink"));
  Host_einstellen("Marklink", "script", QStringLiteral("marklink.php"));
  Host_einstellen("program", "AddressFormat",
                  QStringLiteral("$Company$Cr$Surname $Name$Cr$Street$Cr$Zip $Town$Cr$Country"));
  if (Typ == 1 && qEnvironmentVariable("MARKLINK_LEITUNG") == u"1") {
    Server_ = std::make_unique<SqlServer_Attrappe>(Datenbankdatei());
    Host_einstellen("Provider", "sql", QStringLiteral("SQLOLEDB.1"));
    Host_einstellen("Connection", "DataSource", QStringLiteral("127.0.0.1,%1").arg(Server_->Port()));
    Host_einstellen("Connection", "LoginTimeout", QStringLiteral("5"));
    Host_einstellen("Connection", "UserID", QStringLiteral("sa"));
    Host_einstellen("Connection", "Password", QStringLiteral("geheim"));
  }
  const QString liste = Ordner() + QStringLiteral("mandanten.ini");
  Ini_schreiben(liste, Firma, QStringLiteral("databasetype"), QString::number(Typ));
  Ini_schreiben(liste, Firma, QStringLiteral("installing"), QStringLiteral("0"));
  Ini_schreiben(liste, Firma, QStringLiteral("path"), Ordner());
  Starten();
  EXPECT_TRUE(db::Datenbank_anlegen(Kontext.gConnectionString));
  Starten();
  Zeile(QStringLiteral("Employees"),
        {QStringLiteral("Description"), QStringLiteral("Chef"), QStringLiteral("Store"),
         QStringLiteral("Zentrale"), QStringLiteral("StorageNumber"), QStringLiteral("1")});
  const auto programm = [](const char *schluessel, const char *wert) {
    Option_schreiben(QStringLiteral("Program"), QLatin1String(schluessel), QString::fromUtf8(wert));
  };
  programm("Country", "Deutschland");
  programm("Currency", "EUR");
  programm("PriceFormat", "#,##0.00");
  programm("DigitsFormat", "#,##0.00");
  programm("PositionFormat", "#,##0.00");
  programm("MassFormat", "#,##0.##");
  programm("RebateFormat", "0.00");
  Option_schreiben(QStringLiteral("Marklink"), QStringLiteral("project"), QStringLiteral("Test"));
  Starten();
}

Testmandant::~Testmandant() {
  db::Beobachter_setzen({});
  db::Fehler_einspeisen(0);
  db::Verbindungen_schliessen();
  Kontext = {};
  Programmordner_setzen({});
  Uhr_setzen(nullptr);
  if (Tmp_vorher_.isNull())
    qunsetenv("TMPDIR");
  else
    qputenv("TMPDIR", Tmp_vorher_);
}

QString Testmandant::Ordner() const { return Ordner_.path() + QDir::separator(); }

QString Testmandant::Datenbankdatei() const { return Ordner() + Firma + QStringLiteral(".mdb"); }

void Testmandant::Buecher_zerstoeren() {
  db::Verbindungen_schliessen();
  Server_.reset();
  QFile datei(Datenbankdatei());
  ASSERT_TRUE(datei.open(QIODevice::ReadWrite));
  datei.write(QByteArray(4096, 'x'));
}

void Testmandant::Starten() {
  Kontext = {};
  Kontext.gFirmenname = Firma;
  Kontext.gBenutzername = QStringLiteral("Chef");
  Programm_initialisieren();
  Mandant_initialisieren();
}

void Testmandant::Einstellen(const char *Abschnitt, const char *Schluessel, const QString &Wert) {
  EXPECT_TRUE(Option_schreiben(QLatin1String(Abschnitt), QLatin1String(Schluessel), Wert));
  Starten();
}

void Testmandant::Host_einstellen(const char *Abschnitt, const char *Schluessel, const QString &Wert) {
  EXPECT_TRUE(Ini_schreiben(Ordner() + QStringLiteral("varda.ini"), QLatin1String(Abschnitt),
                            QLatin1String(Schluessel), Wert));
}

void Testmandant::Zeile(const QString &Tabelle, const QVariantList &Felder_und_Werte) {
  db::Recordset rs;
  ASSERT_TRUE(rs.Open(db::Anweisung("SELECT * FROM ", db::Name{Tabelle}), Kontext.gConnectionString));
  rs.AddNew();
  for (qsizetype i = 0; i + 1 < Felder_und_Werte.size(); i += 2)
    rs.SetValue(Felder_und_Werte[i].toString(), Felder_und_Werte[i + 1]);
  rs.Update();
  ASSERT_TRUE(rs.UpdateBatch()) << Tabelle.toStdString();
}

}  // namespace marklink::test
