// Shipments from the command line: handed over, listed, exported, deleted.
#include <sqlite3.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Launcher.h"

namespace marklink::test {
namespace {

class Versand_Test : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    L.Mandant_mit_Shop(GetParam(), 1);
    ASSERT_TRUE(
        QFile::copy(QStringLiteral(MARKLINK_TESTORDNER "/../shipping/Mappe.xls"), L.Datei("easylog.xls")));
    Ausfuehren(
        "INSERT INTO WebshopOrdersXTC (OrderID, Date, Amount, Payment, DeliveryName, DeliveryStreet, "
        "DeliveryPostcode, DeliveryCity, DeliveryCountry, Invoice) VALUES "
        "('1001', '2024-06-10 00:00:00', 20, 'Vorkasse', 'Jürgen Groß', 'Am Markt 3', '01067', "
        "'Dresden', 'DE', 0), ('1002', '2024-06-11 00:00:00', 30, '', 'Zoë Müller', 'Weg 1', '8001', "
        "'Zürich', 'CH', 0)");
  }
  void Ausfuehren(const char *Sql) const {
    sqlite3 *db = nullptr;
    ASSERT_EQ(sqlite3_open(L.Datei("Test.mdb").toUtf8().constData(), &db), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(db, Sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
    sqlite3_close(db);
  }
  QJsonArray Liste() const {
    return QJsonDocument::fromJson(L.Starten("versand liste --json --zeitraum 0").Ausgabe.toUtf8()).array();
  }
  QStringList Zeilen() const {
    return QString::fromLatin1(Launcher::Lesen(L.Datei("easylog_export.csv"))).split(QStringLiteral("\r\n"));
  }

  Launcher L;
};
INSTANTIATE_TEST_SUITE_P(Typ, Versand_Test, testing::Values(0, 1));

TEST_P(Versand_Test, uebergeben_auflisten_exportieren) {
  Ergebnis e = L.Starten("versand exportieren");
  EXPECT_EQ(e.Ausgang, 0);
  EXPECT_EQ(e.Fehler,
            QStringLiteral("[Hinweis] Es sind leider keine Daten für den Export nach Easylog vorhanden.\n"));
  EXPECT_EQ(L.Starten("versand uebergeben 9999").Ausgang, 1);
  EXPECT_EQ(L.Starten({QStringLiteral("versand"), QStringLiteral("uebergeben"), QStringLiteral("1001"),
                       QStringLiteral("--referenz"), QString()})
                .Ausgang,
            2);
  e = L.Starten("versand uebergeben 1001");
  EXPECT_EQ(e.Ausgang, 0);
  EXPECT_EQ(e.Fehler, QStringLiteral("[Hinweis] Die Bestellung wurde an den Versand übermittelt.\n"));
  EXPECT_EQ(L.Starten("versand uebergeben 1002 --referenz Paket_7").Ausgang, 0);

  const QJsonArray liste = Liste();
  ASSERT_EQ(liste.size(), 2);
  const QJsonObject zweite = liste[1].toObject();
  EXPECT_EQ(zweite.value(QStringLiteral("POOL_REFNR")).toString(), QStringLiteral("Paket 7"));
  EXPECT_EQ(zweite.value(QStringLiteral("POOL_V_VERFAHREN")).toString(), QStringLiteral("53"));
  const QString tabelle = L.Starten("versand liste --zeitraum 0").Ausgabe;
  EXPECT_TRUE(tabelle.contains(QStringLiteral("Jürgen Groß"))) << tabelle.toStdString();
  EXPECT_TRUE(tabelle.endsWith(QStringLiteral("2 Versandaufträge\n")));

  e = L.Starten("versand exportieren");
  EXPECT_EQ(e.Ausgang, 0) << e.Fehler.toStdString();
  EXPECT_EQ(e.Ausgabe,
            QStringLiteral("2 von 2 Versandaufträgen in '%1'\n").arg(L.Datei("easylog_export.csv")));
  ASSERT_EQ(Zeilen().size(), 4);  // the header, two lines, and the end
  EXPECT_TRUE(Zeilen()[0].startsWith(QStringLiteral("POOL_REFNR|POOL_V_ABS_REFNR|")));
  EXPECT_TRUE(Zeilen()[2].startsWith(QStringLiteral("Paket 7||"))) << Zeilen()[2].toStdString();
  EXPECT_EQ(L.Starten("versand liste --zeitraum 0").Ausgabe, QStringLiteral("Keine Versandaufträge.\n"));
}

TEST_P(Versand_Test, eine_Datei_die_sich_nicht_schreiben_laesst) {
  L.Starten("versand uebergeben 1001");
  L.Starten({QStringLiteral("einstellung"), QStringLiteral("schreiben"), QStringLiteral("easylog"),
             QStringLiteral("file"), L.Wurzel() + QStringLiteral("/fehlt/easylog.csv")});
  const Ergebnis e = L.Starten("versand exportieren");
  EXPECT_EQ(e.Ausgang, 1);
  EXPECT_TRUE(e.Fehler.startsWith(QStringLiteral("[Hinweis] Die Daten wurden erfolgreich exportiert.\n")));
  EXPECT_EQ(Liste().size(), 0);  // marked all the same
}

TEST_P(Versand_Test, loeschen_nur_nach_Ja) {
  L.Starten("versand uebergeben 1001");
  EXPECT_EQ(L.Starten("versand loeschen").Ausgang, 1);
  EXPECT_EQ(Liste().size(), 1);
  const Ergebnis e = L.Starten("versand loeschen --antwort Versandaufträge_in_Varda_löschen=Ja");
  EXPECT_EQ(e.Ausgang, 0) << e.Fehler.toStdString();
  EXPECT_TRUE(e.Fehler.endsWith(QStringLiteral("[Hinweis] Die Versandaufträge wurden in Varda gelöscht.\n")));
  EXPECT_EQ(Liste().size(), 0);
}

}  // namespace
}  // namespace marklink::test
