// Shipments from the command line: handed over, listed, exported, deleted.
#include <QJsonArray>
#include <QJsonObject>

#include "Launcher.h"
#include "support/Testdateien.h"

namespace marklink::test {
namespace {

class Versand_Test : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    L.Mandant_mit_Shop(GetParam(), 1);
    ASSERT_TRUE(
        QFile::copy(QStringLiteral(MARKLINK_TESTORDNER "/../shipping/Mappe.xls"), L.Datei("easylog.xls")));
    L.Sql(
        "INSERT INTO WebshopOrdersXTC (OrderID, Date, Amount, Payment, DeliveryName, DeliveryStreet, "
        "DeliveryPostcode, DeliveryCity, DeliveryCountry, Invoice) VALUES "
        "('1001', '2024-06-10 00:00:00', 20, 'Vorkasse', 'Jürgen Groß', 'Am Markt 3', '01067', "
        "'Dresden', 'DE', 0), ('1002', '2024-06-11 00:00:00', 30, '', 'Zoë Müller', 'Weg 1', '8001', "
        "'Zürich', 'CH', 0)");
  }
  QJsonArray Liste() const { return L.Json("versand liste --zeitraum 0").array(); }

  Launcher L;
};
INSTANTIATE_TEST_SUITE_P(Typ, Versand_Test, testing::Values(0, 1));

TEST_P(Versand_Test, uebergeben_auflisten_exportieren) {
  L.Pruefen({"versand exportieren", 0, "",
             "[Hinweis] Es sind leider keine Daten für den Export nach Easylog vorhanden.\n"});
  EXPECT_EQ(L.Starten("versand uebergeben 9999").Ausgang, 1);
  EXPECT_EQ(L.Starten(Worte("versand uebergeben 1001 --referenz") + QStringList{QString()}).Ausgang, 2);
  L.Pruefen(
      {"versand uebergeben 1001", 0, "", "[Hinweis] Die Bestellung wurde an den Versand übermittelt.\n"});
  EXPECT_EQ(L.Starten("versand uebergeben 1002 --referenz Paket_7").Ausgang, 0);

  const QJsonArray liste = Liste();
  ASSERT_EQ(liste.size(), 2);
  const QJsonObject zweite = liste[1].toObject();
  EXPECT_EQ(zweite.value(u"POOL_REFNR"_qs).toString(), u"Paket 7"_qs);
  EXPECT_EQ(zweite.value(u"POOL_V_VERFAHREN"_qs).toString(), u"53"_qs);
  const QString tabelle = L.Starten("versand liste --zeitraum 0").Ausgabe;
  EXPECT_TRUE(tabelle.contains(u"Jürgen Groß"_qs)) << tabelle.toStdString();
  EXPECT_TRUE(tabelle.endsWith(u"2 Versandaufträge\n"_qs));

  const QString datei = L.Datei("easylog_export.csv");
  const Ergebnis e = L.Starten("versand exportieren");
  EXPECT_EQ(e.Ausgang, 0) << e.Fehler.toStdString();
  EXPECT_EQ(e.Ausgabe, u"2 von 2 Versandaufträgen in '%1'\n"_qs.arg(datei));
  const QStringList zeilen = QString::fromLatin1(Datei_lesen(datei)).split(u"\r\n"_qs);
  ASSERT_EQ(zeilen.size(), 4);  // the header, two lines, and the end
  EXPECT_TRUE(zeilen[0].startsWith(u"POOL_REFNR|POOL_V_ABS_REFNR|"_qs));
  EXPECT_TRUE(zeilen[2].startsWith(u"Paket 7||"_qs)) << zeilen[2].toStdString();
  L.Pruefen({"versand liste --zeitraum 0", 0, "Keine Versandaufträge.\n"});
}

TEST_P(Versand_Test, eine_Datei_die_sich_nicht_schreiben_laesst) {
  L.Starten("versand uebergeben 1001");
  L.Einstellen("easylog", "file", L.Wurzel() + u"/fehlt/easylog.csv"_qs);
  const Ergebnis e = L.Starten("versand exportieren");
  EXPECT_EQ(e.Ausgang, 1);
  EXPECT_TRUE(e.Fehler.startsWith(u"[Hinweis] Die Daten wurden erfolgreich exportiert.\n"_qs));
  EXPECT_EQ(Liste().size(), 0);  // marked all the same
}

TEST_P(Versand_Test, loeschen_nur_nach_Ja) {
  L.Starten("versand uebergeben 1001");
  EXPECT_EQ(L.Starten("versand loeschen").Ausgang, 1);
  EXPECT_EQ(Liste().size(), 1);
  const Ergebnis e = L.Starten("versand loeschen --antwort Versandaufträge_in_Varda_löschen=Ja");
  EXPECT_EQ(e.Ausgang, 0) << e.Fehler.toStdString();
  EXPECT_TRUE(e.Fehler.endsWith(u"[Hinweis] Die Versandaufträge wurden in Varda gelöscht.\n"_qs));
  EXPECT_EQ(Liste().size(), 0);
}

}  // namespace
}  // namespace marklink::test
