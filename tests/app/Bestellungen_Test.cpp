// Orders from the command line, from the shop to the table and back.
#include <signal.h>

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>

#include "Launcher.h"
#include "support/Datenbank_Test.h"
#include "support/Shop_Attrappe.h"
#include "support/Testdateien.h"

namespace marklink::test {
namespace {

const QByteArray Kopf = "<?xml version=\"1.0\" encoding=\"windows-1252\"?>";

QByteArray Bestellung(const QByteArray &Nummer, const QByteArray &Status, const QByteArray &Datum,
                      const QByteArray &Betrag) {
  return "<ORDER_INFO><ORDER_HEADER><ORDER_ID>" + Nummer +
         "</ORDER_ID><CUSTOMER_NAME>J\xFCrgen Gro\xDF</CUSTOMER_NAME><ORDER_STATUS>" + Status +
         "</ORDER_STATUS><ORDER_DATE>" + Datum +
         "</ORDER_DATE><ORDER_CURRENCY>EUR</ORDER_CURRENCY></ORDER_HEADER>"
         "<ORDER_COMMENTS>Bitte\x1b[31m klingeln</ORDER_COMMENTS>"
         "<ORDER_TOTAL><TOTAL><TOTAL_CLASS>ot_total</TOTAL_CLASS><TOTAL_VALUE>" +
         Betrag +
         "</TOTAL_VALUE></TOTAL></ORDER_TOTAL><BILLING_ADDRESS><FIRSTNAME>J\xFCrgen</FIRSTNAME>"
         "<LASTNAME>Gro\xDF</LASTNAME><CITY>Dresden</CITY><COUNTRY>DE</COUNTRY></BILLING_ADDRESS>"
         "<ORDER_PRODUCTS><PRODUCT><PRODUCTS_ID>7</PRODUCTS_ID><PRODUCTS_QUANTITY>2</PRODUCTS_QUANTITY>"
         "<PRODUCTS_MODEL>A-1</PRODUCTS_MODEL><PRODUCTS_NAME>Schuh</PRODUCTS_NAME>"
         "<PRODUCTS_PRICE>1234.5</PRODUCTS_PRICE></PRODUCT></ORDER_PRODUCTS></ORDER_INFO>";
}

class Bestellungen_Test : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    Shop.Antworten("get_orders",
                   Shop_Antwort{Kopf + "<ORDER>" + Bestellung("1001", "1", "2024-06-15 00:00:00", "2469.00") +
                                Bestellung("1002", "3", "2023-02-01 08:30:00", "5.5") + "</ORDER>"});
    L.Mandant_mit_Shop(GetParam(), Shop.Port());
  }
  void Abrufen() const {
    L.Pruefen({"bestellungen abrufen", 0, "", "[Hinweis] Die Bestellungen wurden in Varda importiert.\n"});
  }
  QJsonArray Liste(const char *Optionen = "") const {
    return L.Json(Worte("bestellungen liste") + Worte(Optionen)).array();
  }
  QString Stati() const { return L.Zeilen("SELECT OrderID, Status FROM WebshopOrdersXTC ORDER BY OrderID"); }
  QString Mdb() const { return L.Datei("Test.mdb"); }
  /// The last request to the shop behind its login.
  std::string Letzte_Anfrage() const { return Shop.Parameter(Shop.Anfragen().size() - 1).toStdString(); }

  Shop_Attrappe Shop;
  Launcher L;
};
INSTANTIATE_TEST_SUITE_P(Typ, Bestellungen_Test, testing::Values(0, 1));

TEST_P(Bestellungen_Test, abrufen_und_auflisten) {
  Abrufen();
  EXPECT_EQ(Letzte_Anfrage(), "");
  const QJsonArray alle = Liste();
  ASSERT_EQ(alle.size(), 2);
  const QJsonObject erste = alle[0].toObject();
  EXPECT_EQ(erste[u"OrderID"_qs].toString(), u"1001"_qs);
  EXPECT_EQ(erste[u"Customer"_qs].toString(), u"Jürgen Groß"_qs);
  EXPECT_EQ(erste[u"Amount"_qs].toDouble(), 2469.0);
  EXPECT_EQ(erste[u"Date"_qs].toString(), u"2024-06-15T00:00:00"_qs);
  EXPECT_EQ(erste[u"Invoice"_qs], QJsonValue(false));
  EXPECT_TRUE(erste[u"PaymentPractice"_qs].isNull());
  EXPECT_EQ(erste.size(), 22);

  const QString tabelle = L.Starten("bestellungen liste").Ausgabe;
  EXPECT_TRUE(tabelle.contains(u"1001        15.06.2024           Jürgen Groß      2.469,00  EUR"_qs))
      << tabelle.toStdString();
  EXPECT_TRUE(tabelle.endsWith(u"\n\n2 Bestellungen\n"_qs)) << tabelle.toStdString();
}

TEST_P(Bestellungen_Test, Filter) {
  Abrufen();
  const struct {
    const char *Optionen;
    int Anzahl;
  } faelle[] = {
      {"--status 1", 1},    {"--status 3,1", 2}, {"--status 2", 0},    {"--zeitraum 1", 1},
      {"--zeitraum 2", 1},  {"--zeitraum 8", 1}, {"--zeitraum 10", 0}, {"--status 3 --zeitraum 1", 0},
      {"--zeitraum 40", 0}, {"--zeitraum 0", 2}};
  for (const auto &fall : faelle) EXPECT_EQ(Liste(fall.Optionen).size(), fall.Anzahl) << fall.Optionen;
  L.Einstellen("Marklink", "ViewablePeriod", u"2"_qs);
  EXPECT_EQ(Liste().size(), 1) << "the period chosen last holds without an option";

  EXPECT_EQ(L.Starten("bestellungen abrufen --status 1,3").Ausgang, 0);
  EXPECT_EQ(Letzte_Anfrage(), "&order_status='1','3'");
  const size_t anfragen = Shop.Anfragen().size();
  for (const char *zeile : {"bestellungen abrufen --status 99", "bestellungen liste --status 1,99"})
    L.Pruefen({zeile, 2, "", "marklink: Den Status '99' gibt es nicht"});
  EXPECT_EQ(Shop.Anfragen().size(), anfragen);
}

TEST_P(Bestellungen_Test, zeigen) {
  Abrufen();
  L.Einstellen("Marklink", "ViewablePeriod", u"2"_qs);  // hides it in the list only
  const QString text = L.Starten("bestellungen zeigen 1001").Ausgabe;
  for (const char *teil : {"Bestellung 1001 vom 15.06.2024\n", "Auftragswert:   2.469,00 EUR\n",
                           "Jürgen Groß", "Dresden", "A-1", "1.234,50", "Bitte [31m klingeln"})
    EXPECT_TRUE(text.contains(QString::fromUtf8(teil))) << teil << " in\n" << text.toStdString();
  const QJsonObject objekt = L.Json("bestellungen zeigen 1001").object();
  const QJsonObject position = objekt[u"Positions"_qs].toArray().at(0).toObject();
  EXPECT_EQ(position[u"Einzelpreis"_qs].toDouble(), 1234.5);
  EXPECT_EQ(position[u"Menge"_qs].toDouble(), 2.0);
  const Befehlsfall fehlt[] = {
      {"bestellungen zeigen 1", 1, "", "marklink: Die Bestellung '1' ist nicht vorhanden."},
      {"bestellungen zeigen 1001'", 1, "", "marklink: Die Bestellung '1001'' ist nicht vorhanden."},
      {"bestellungen zeigen --json x", 1, "", "marklink: Die Bestellung 'x' ist nicht vorhanden."}};
  for (const Befehlsfall &fall : fehlt) L.Pruefen(fall);
}

TEST_P(Bestellungen_Test, Status) {
  Abrufen();
  Shop.Antworten(
      "set_order_update",
      Shop_Antwort{Kopf + "<STATUS><STATUS_DATA><MESSAGE>Ge\xE4ndert.</MESSAGE></STATUS_DATA></STATUS>"});
  const char *const faelle[][2] = {
      // the line, and what goes to the shop
      {"bestellungen status 1001 2", "&order_id=1001&status=2&notify=off&notify_comments=off&comments="},
      {"bestellungen status 1001 4 --mail",
       "&order_id=1001&status=4&notify=on&notify_comments=off&comments="},
      {"bestellungen status 1001 5 --kommentar Grüße_&_mehr",
       "&order_id=1001&status=5&notify=off&notify_comments=off&comments=Gr%FC%DFe%20%26%20mehr"},
      {"bestellungen status --mail --kommentar=so 1001 3",
       "&order_id=1001&status=3&notify=on&notify_comments=on&comments=so"},
  };
  for (const auto &[zeile, anfrage] : faelle) {
    L.Pruefen({zeile, 0, "Geändert.\n", "[Hinweis] Der Status der Bestellung wurde erfolgreich geändert.\n"});
    EXPECT_EQ(Letzte_Anfrage(), anfrage);
  }
  EXPECT_EQ(Stati(), u"1001|3\n1002|3"_qs);

  const size_t anfragen = Shop.Anfragen().size();
  EXPECT_EQ(L.Starten("bestellungen status 4711 2").Ausgang, 1);
  EXPECT_EQ(Shop.Anfragen().size(), anfragen) << "nothing goes out for an order that is not there";

  // The table follows also when the shop fails, and the user is told.
  Shop.Skript_setzen([](const QByteArray &) { return Shop_Antwort{"kaputt", 500}; });
  const Ergebnis e = L.Starten("bestellungen status 1001 2");
  EXPECT_EQ(e.Ausgang, 1);
  EXPECT_TRUE(e.Fehler.contains(u"nur in Varda geändert"_qs)) << e.Fehler.toStdString();
  EXPECT_EQ(Stati(), u"1001|2\n1002|3"_qs);
  L.Pruefen({"bestellungen abrufen", 1, "", "[Fehler] Beim Einlesen der Bestellungen ist ein Fehler"});
  EXPECT_EQ(Stati(), u"1001|2\n1002|3"_qs);
}

TEST_P(Bestellungen_Test, loeschen_nur_nach_Ja) {
  Abrufen();
  const QString vorher = Stati();
  const char *const frage =
      "[Bestellung in Varda löschen] Möchten Sie die temporär gespeicherten Bestellungen wirklich löschen?";
  for (const char *zeile :
       {"bestellungen loeschen", "bestellungen loeschen --antwort Bestellung_in_Varda_löschen=Nein",
        "bestellungen loeschen --antwort Hinweis=Ja"}) {
    L.Pruefen({zeile, 1, "", frage});
    EXPECT_EQ(Stati(), vorher) << zeile;
  }
  const std::string geloescht = std::string(frage) + "\n[Hinweis] Die Bestellung wurden in Varda gelöscht.\n";
  L.Pruefen({"--antwort Bestellung_in_Varda_löschen=Ja bestellungen loeschen", 0, "", geloescht.c_str()});
  EXPECT_EQ(Stati(), QString());
}

TEST_P(Bestellungen_Test, Strg_C_gibt_den_Shop_auf) {
  Shop.Skript_setzen([](const QByteArray &) { return Shop_Antwort{"x", 200, {}, Unart::Schweigen}; });
  const auto prozess = L.Anstossen(Worte("bestellungen abrufen"));
  ASSERT_TRUE(prozess->waitForStarted());
  QElapsedTimer uhr;
  for (uhr.start(); Shop.Anfragen().empty() && uhr.elapsed() < 20000;) prozess->waitForReadyRead(20);
  ASSERT_FALSE(Shop.Anfragen().empty());
  uhr.start();
  ::kill(pid_t(prozess->processId()), SIGINT);
  EXPECT_EQ(Launcher::Abwarten(*prozess).Ausgang, 1);
  EXPECT_LT(uhr.elapsed(), 10000);
}

TEST_P(Bestellungen_Test, Datenbank_unbrauchbar) {
  Abrufen();
  const auto scheitern = [&](const std::vector<const char *> &zeilen) {
    for (const char *zeile : zeilen)
      L.Pruefen({zeile, 1, "", "marklink: Die Datenbank des Mandanten 'Test' "});
  };
  const size_t anfragen = Shop.Anfragen().size();
  {
    Rohe_Verbindung fremder(Mdb());
    ASSERT_TRUE(fremder.lauf("BEGIN IMMEDIATE"));
    scheitern({"bestellungen status 1001 2"});
    EXPECT_EQ(L.Starten("bestellungen zeigen 1001").Ausgang, 0) << "reading goes on";
  }
  const std::vector<const char *> alle{"bestellungen liste", "bestellungen abrufen",
                                       "bestellungen zeigen 1001", "bestellungen status 1001 2",
                                       "bestellungen loeschen --antwort Bestellung_in_Varda_löschen=Ja"};
  const QByteArray kaputt(200000, 'x');
  Datei_schreiben(Mdb(), kaputt);
  scheitern(alle);
  EXPECT_EQ(Datei_lesen(Mdb()), kaputt) << "a damaged file is left for whoever can repair it";
  ASSERT_TRUE(QFile::remove(Mdb()));
  scheitern(alle);
  EXPECT_FALSE(QFile::exists(Mdb()));
  EXPECT_EQ(Shop.Anfragen().size(), anfragen);
  ASSERT_TRUE(QFile::remove(L.Datei("varda.ini")));
  L.Pruefen({"bestellungen liste", 1, "", "marklink: "});
}

}  // namespace
}  // namespace marklink::test
