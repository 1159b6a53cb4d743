// Orders handed over for shipping: what stands in the shipment, and that a failure wipes none.
#include "shipping/Versandauftrag.h"

#include <QFile>

#include "db/Verbindung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "support/Datenbank_Test.h"
#include "support/Dialoge_Skript.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

class Versandauftrag_Test : public test::Mandant_Test {
 protected:
  Versandauftrag_Test() {
    EXPECT_TRUE(
        QFile::copy(QStringLiteral(MARKLINK_VERSANDTESTS "/Mappe.xls"), Mandant.Ordner() + u"werte.xls"_qs));
    Mandant.Host_einstellen("files", "forwardingfile", u"werte.xls"_qs);
    Mandant.Einstellen("easylog", "ekp", u"5012345678"_qs);
    Mandant.Einstellen("easylog", "client", u"07"_qs);
    Ausfuehren("INSERT INTO Countries (Token, Description, Currency) VALUES ('DE', 'Deutschland', 'EUR')");
    Ausfuehren("INSERT INTO Countries (Token, Description, Currency) VALUES ('CH', 'Schweiz', 'CHF')");
    for (const auto &[art, nachnahme, gebuehr] :
         {std::tuple{u"Nachnahme"_qs, true, 5.95}, {u"Vorkasse"_qs, false, 1.0}})
      Mandant.Zeile(u"MethodPayments"_qs,
                    {u"Description"_qs, art, u"CashOnDelivery"_qs, nachnahme, u"PaymentFee"_qs, gebuehr});
    Ausfuehren(
        "INSERT INTO WebshopOrdersXTC (OrderID, Customer, Amount, Telephone, Email, VatID, DeliveryName, "
        "DeliveryStreet, DeliveryPostcode, DeliveryCity, DeliverySuburb, DeliveryCountry, Notes) VALUES "
        "('1001', 'Jürgen Groß', 1234.5, '0351 1', 'j@x.de', 'DE1', 'Jürgen Groß', 'Hauptstr. 12a', '01067', "
        "'Dresden', 'Mitte', 'DE', 'klingeln')");
    for (const double menge : {2.0, 0.5})
      Mandant.Zeile(u"Positions"_qs, {u"Document"_qs, u"Rechnung"_qs, u"DocumentNumber"_qs, u"RE1"_qs,
                                      u"Quantity"_qs, menge, u"WeightNet"_qs, 0.1, u"WeightGross"_qs, 1.5});
  }

  static Versandauftrag Auftrag(const QString &Zahlart = {}) {
    return {u"1001"_qs, u"RE1"_qs, u"Rechnung"_qs, u"RE1"_qs, u"Ihre Bestellung"_qs, Zahlart};
  }
  static void Aendern(const char *Feld, const QString &Wert) {
    ASSERT_TRUE(
        Ausfuehren({"UPDATE WebshopOrdersXTC SET ", db::Name{QLatin1String(Feld)}, " = ", db::Wert{Wert}}));
  }
  /// Columns of the shipments, as another program reads them.
  QString Versand(const char *Spalten) const {
    return test::Rohe_Verbindung(Mandant.Datenbankdatei())
        .lesen((QByteArray("SELECT ") + Spalten + " FROM LogisticsEASYLOG").constData());
  }
  static bool Uebergeben() {
    return Abfragen("SELECT Logistic FROM WebshopOrdersXTC").Number(u"Logistic"_qs) == Kontext.gSQL_True;
  }
};
MARKLINK_BEIDE_TYPEN(Versandauftrag_Test);

TEST(Strasse, Number_and_what_stands_around_it) {
  const struct {
    const char *Text, *Strasse, *Hausnummer, *Zusatz;
  } faelle[] = {{"Hauptstr. 12a", "HAUPTSTR. ", "12", "A"}, {"12 Hauptstr.", "", "12", " HAUPTSTR."},
                {"Am Markt", "AM MARKT", "", ""},           {"Gasse 7", "GASSE ", "7", ""},
                {"Weg 3-5 b", "WEG ", "3", "-5 B"},         {"", "", "", ""},
                {"Königsallee 1", "KÖNIGSALLEE ", "1", ""}, {"Straße ³ 9", "STRAßE ³ ", "9", ""}};
  for (const auto &fall : faelle) {
    const Strassenteile teile = Strasse_zerlegen(QString::fromUtf8(fall.Text));
    EXPECT_EQ(teile.Strasse, QString::fromUtf8(fall.Strasse)) << fall.Text;
    EXPECT_EQ(teile.Hausnummer, QString::fromUtf8(fall.Hausnummer)) << fall.Text;
    EXPECT_EQ(teile.Zusatz, QString::fromUtf8(fall.Zusatz)) << fall.Text;
  }
}

TEST_P(Versandauftrag_Test, A_shipment_holds_the_order_and_the_fields_of_the_shipper) {
  ASSERT_TRUE(Versandauftrag_erzeugen(Auftrag()));
  const QString felder = QString::fromUtf8(
      "OrderID=1001|Notes=klingeln|Amount=1234.5|document=Rechnung|DocumentNumber=RE1|"
      "Date=2024-06-15 00:00:00|Conveyed=0|POOL_REFNR=RE1|POOL_V_ABS_REFNR=5012345678|"
      "POOL_V_MAND_REFNR=07|POOL_V_VERFAHREN=01|POOL_V_TEILNAHME=1|POOL_V_PRODUKT_CN=P2|"
      "POOL_V_EXTRASLST=|POOL_V_NN_WAEHRUNG=EUR|POOL_WERT_WAEHRUNG=EUR|POOL_EMPF_NAME1=Jürgen Groß|"
      "POOL_EMPF_NAME2=|POOL_EMPF_PLZ=01067|POOL_EMPF_ORT=Dresden|POOL_EMPF_ORTTEIL=Mitte|"
      "POOL_EMPF_STRASSE=HAUPTSTR. |POOL_EMPF_HAUSNR=12 A|POOL_EMPF_TEL=0351 1|"
      "POOL_EMPF_EMAIL=j@x.de|POOL_EMPF_USTID=DE1|POOL_EMPF_LANDCODE=DE|POOL_EMPF_GEWICHT=3,750|"
      "POOL_ANZAHL_SENDUNGEN=1|POOL_V_ZOLL_WARENART=4|POOL_V_VORAUSVERF_NAT=0|"
      "POOL_V_VORAUSVERF_INT_TERMIN=0|POOL_VERWENDUNGSZWECK=Ihre Bestellung");
  for (const QString &feld : felder.split(u'|')) {
    const QString name = feld.section(u'=', 0, 0);
    EXPECT_EQ(name + u'=' + Versand(qPrintable(name)), feld);
  }
  EXPECT_TRUE(Uebergeben());
}

TEST_P(Versandauftrag_Test, Company_country_and_payment_decide) {
  const struct {
    const char *Firma, *Land, *Zahlart, *Erwartet;
  } faelle[] = {
      {"", "DE", "Vorkasse", "Jürgen Groß||01|1|P2||EUR"},
      {"Groß & Co", "DE", "Nachnahme", "Groß & Co|Jürgen Groß|01|1|P2|132=1.240,45|EUR"},
      {"", "CH", "Nachnahme", "Jürgen Groß||53|1,5||=1.240,45|CHF"},  // the workbook has no service
      {"", "", "Unbekannt", "Jürgen Groß||01|1|P2||"},
      {"", "XX", "O'Brien", "Jürgen Groß||01|1|P2||"},
  };
  for (const auto &fall : faelle) {
    Aendern("DeliveryCompany", QString::fromUtf8(fall.Firma));
    Aendern("DeliveryCountry", QString::fromUtf8(fall.Land));
    ASSERT_TRUE(Versandauftrag_erzeugen(Auftrag(QString::fromUtf8(fall.Zahlart))));
    EXPECT_EQ(Versand("POOL_EMPF_NAME1, POOL_EMPF_NAME2, POOL_V_VERFAHREN, POOL_V_TEILNAHME, "
                      "POOL_V_PRODUKT_CN, POOL_V_EXTRASLST, POOL_V_NN_WAEHRUNG"),
              QString::fromUtf8(fall.Erwartet));
  }
}

TEST_P(Versandauftrag_Test, A_second_time_makes_it_anew_and_exportable) {
  ASSERT_TRUE(Versandauftrag_erzeugen(Auftrag()));
  ASSERT_TRUE(Ausfuehren({"UPDATE LogisticsEASYLOG SET Conveyed = ", db::Zahl(int{Kontext.gSQL_True}),
                          ", POOL_EMPF_FAX = 'von Hand'"}));
  Aendern("DeliveryCity", u"Leipzig"_qs);
  QFile::remove(Mandant.Ordner() + u"werte.xls"_qs);
  test::Dialoge_Skript dialoge;
  dialoge.Erwarten(u"Hinweis"_qs);
  Versandauftrag auftrag{u"1001"_qs, u"REF"_qs};
  auftrag.Meldung_zeigen = true;
  ASSERT_TRUE(Versandauftrag_erzeugen(auftrag));
  EXPECT_EQ(dialoge.Gezeigt[0].Zeilen, QStringList(u"Die Bestellung wurde an den Versand übermittelt."_qs));
  EXPECT_EQ(Versand("Conveyed, POOL_EMPF_FAX, POOL_EMPF_ORT, POOL_REFNR, POOL_V_VERFAHREN, DocumentNumber, "
                    "POOL_EMPF_GEWICHT"),
            u"0||Leipzig|REF|||0,000"_qs);
}

TEST_P(Versandauftrag_Test, A_failure_wipes_nothing_and_claims_nothing) {
  EXPECT_FALSE(Versandauftrag_erzeugen({u"9999"_qs, u"R"_qs}));
  EXPECT_FALSE(Versandauftrag_erzeugen({u"10'01"_qs, u"R"_qs}));
  EXPECT_EQ(Versand("COUNT(*)"), u"0"_qs);
  for (const bool vorhanden : {false, true}) {
    for (int n = 1; n < 40; ++n) {
      Ausfuehren("DELETE FROM LogisticsEASYLOG");
      Ausfuehren("UPDATE WebshopOrdersXTC SET Logistic = 0");
      if (vorhanden) {
        ASSERT_TRUE(Versandauftrag_erzeugen(Auftrag()));
        Ausfuehren("UPDATE WebshopOrdersXTC SET Logistic = 0");
      }
      db::Fehler_einspeisen(n);
      Versandauftrag neu = Auftrag();
      neu.Referenznummer = u"NEU"_qs;
      const bool gut = Versandauftrag_erzeugen(neu);
      db::Fehler_einspeisen(0);
      SCOPED_TRACE(n);
      EXPECT_EQ(Versand("POOL_REFNR, POOL_EMPF_NAME1"), gut         ? u"NEU|Jürgen Groß"_qs
                                                        : vorhanden ? u"RE1|Jürgen Groß"_qs
                                                                    : QString());
      EXPECT_TRUE(gut || !Uebergeben());
    }
  }
}

}  // namespace
}  // namespace marklink
