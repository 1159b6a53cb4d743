// Customers from the shop into Contacts: requests, boxes, and what the table keeps.
#include "orders/Kundenuebernahme.h"

#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zeichensatz.h"
#include "support/Datenbank_Test.h"
#include "support/Dialoge_Skript.h"
#include "support/Shop_Attrappe.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

using Ausgang = Kundenuebernahme::Ausgang;

const QString Bank =
    u"Kontonummer: 1234 5678\r\nKreditinstitut: Bank am Ring \r\nBLZ: 850 503 00\r\nKontoinhaber: H. Meier"_qs;
const QString Karte =
    u"Kartennummer: 4111 1111\r\nCVV/CVC-Nummer: 987\r\nGültig bis (MM/JJ): 05/27 \r\nKarteninhaber: H. M."_qs;
const QString Meier =
    u"<STATUS_DATA><NAME>Händler</NAME></STATUS_DATA><CITY>Köln</CITY><CUSTOMERS_CID>4711</CUSTOMERS_CID>"
    "<EMAIL>h.meier@example.de</EMAIL><GENDER>m</GENDER><COMPANY>Meier &amp; Söhne</COMPANY><FIRSTNAME>Hans"
    "</FIRSTNAME><LASTNAME>Meier</LASTNAME><STREET>Am Ring 1</STREET><SUBURB>Hof</SUBURB><POSTCODE>01067"
    "</POSTCODE><COUNTRY>AT</COUNTRY><TELEPHONE>1</TELEPHONE><FAX>2</FAX><VAT_ID>ATU1</VAT_ID><BIRTHDAY>"
    "1970-02-03</BIRTHDAY><DATE_ACCOUNT_CREATED>2020-01-02 03:04:05</DATE_ACCOUNT_CREATED><CUSTOMERS_ID>17"
    "</CUSTOMERS_ID>"_qs;

class Kundenuebernahme_Test : public test::Mandant_Test {
 protected:
  Kundenuebernahme_Test() {
    Mandant.Einstellen("Formatting", "Customer", u"Nr.;Leer;Leer;Leer;Leer"_qs);
    Mandant.Einstellen("NumberRange", "Customer", u"00099"_qs);
    Mandant.Einstellen("DATEV", "DebitorAccount", u"0010009"_qs);
    Mandant.Einstellen("Marklink", "UseShopCustomerNumber", u"0"_qs);
    Mandant.Zeile(u"Countries"_qs,
                  {u"Description"_qs, u"Österreich"_qs, u"Token"_qs, u"AT"_qs, u"EU"_qs, true});
    Mandant.Zeile(u"Countries"_qs, {u"Description"_qs, u"Deutschland"_qs, u"Token"_qs, u"DE"_qs});
    Shop.Einsetzen();
  }
  void Antworten(const QByteArray &Rumpf) {
    Shop.Skript_setzen([Rumpf](const QByteArray &) { return test::Shop_Antwort{Rumpf}; });
  }
  void Kunde_im_Shop(const QString &Kunde) {
    Antworten(
        Nach_1252(u"<?xml version=\"1.0\" encoding=\"windows-1252\"?><CUSTOMERS><CUSTOMERS_DATA>"_qs + Kunde +
                  u"</CUSTOMERS_DATA><CUSTOMERS_DATA><EMAIL>x</EMAIL></CUSTOMERS_DATA></CUSTOMERS>"_qs));
  }
  static Kundenuebernahme Uebernehmen(const QString &Hinweis = {},
                                      const QString &Email = u"H.Meier@example.de"_qs) {
    return Kunde_uebernehmen(Email, u"17"_qs, u"Rechnung\r\nKöln"_qs, u"Lieferung"_qs, Hinweis);
  }
  QString Roh(const char *Sql) const { return test::Rohe_Verbindung(Mandant.Datenbankdatei()).lesen(Sql); }
  static QString Zaehler() {
    return Option_lesen(u"NumberRange"_qs, u"Customer"_qs) + u' ' +
           Option_lesen(u"DATEV"_qs, u"DebitorAccount"_qs);
  }

  test::Shop_Attrappe Shop;
  test::Dialoge_Skript Dialoge;
  test::Fortschritt_Skript Fortschritt;
};
MARKLINK_BEIDE_TYPEN(Kundenuebernahme_Test);

TEST_P(Kundenuebernahme_Test, Neu_mit_allen_Feldern_und_aufgefrischt) {
  Kunde_im_Shop(Meier);
  EXPECT_EQ(Kunde_aus_Bestellung_anlegen(u"h.meier@example.de"_qs, u"17"_qs, u"R"_qs, u"L"_qs, Bank),
            u"00099"_qs);
  EXPECT_EQ(Shop.Parameter(0), "&customers_id=17");
  EXPECT_EQ(
      Roh("SELECT CustomerNumber, DateCreation, DebitorAccount, Matchcode, DateUpdate, WorksOnLastOf, "
          "Salutation, Company, NameAffix, Surname, Name, Street, Zip, Town, Country, InvoiceAddress, "
          "DeliveryAddress, WebshopID, Telephone, Fax, Mobile, Email, Discount, Birthday, CustomerType, "
          "Employee, Forwarding = '', closed, VatID, TaxCalculation FROM Contacts"),
      u"00099|2020-01-02 03:04:05|0010009|Meier, Hans|2024-06-15 10:30:00|Chef|Herr|Meier & "
      "Söhne|Hof|Hans|Meier|Am Ring 1|01067|Köln|Österreich|R|L|17|1|2||h.meier@example.de|0.0|"
      "1970-02-03 00:00:00|Händler|Chef|1|0|ATU1|1"_qs);
  EXPECT_EQ(Roh("SELECT AccountNumber, Bankname, BankCode, AccountHolder, bic = '', BankdataLine, "
                "abs(CollectionAuthorisation), BankdataBlock FROM Contacts"),
            u"12345678|Bank am Ring|85050300|H. Meier|1|Kontonummer: 1234 5678  ·  Kreditinstitut: Bank am "
            "Ring   ·  BLZ: 850 503 00  ·  Kontoinhaber: H. Meier|1|"_qs +
                Bank);
  EXPECT_EQ(Zaehler(), u"00100 10010"_qs) << "the debtor account without padding";

  // A refresh keeps number, search name, account and creation; card details leave those of the bank alone.
  ASSERT_TRUE(
      Ausfuehren("UPDATE Contacts SET Discount = 7.5, MethodPayment = 'bar', Matchcode = 'M', closed = 1"));
  Kunde_im_Shop(QString(Meier).replace(u"2020"_qs, u"2021"_qs).replace(u"Köln"_qs, u"Bonn"_qs));
  EXPECT_EQ(Uebernehmen(Karte).Kundennummer, u"00099"_qs);
  EXPECT_EQ(Roh("SELECT substr(DateCreation, 1, 4), DebitorAccount, Matchcode, Discount, MethodPayment, "
                "closed, Town, CreditCard, CreditcardNumber, CreditcardValidTo, CreditCardHolder, BankCode "
                "FROM Contacts"),
            u"2020|0010009|M|0.0||0|Bonn|MasterCard / Visa|41111111|05/27|H. M.|85050300"_qs);
  Uebernehmen(u"Vorkasse\r\nohne Angaben"_qs);
  Uebernehmen(u"Kontonummer:\r\n\r\nBLZ: 1"_qs);
  EXPECT_EQ(Roh("SELECT AccountNumber, Bankname, BankCode, CreditcardNumber FROM Contacts"),
            u"||1|41111111"_qs);
  EXPECT_EQ(Zaehler(), u"00100 10010"_qs);
}

TEST_P(Kundenuebernahme_Test, Kundennummer_Anrede_und_Steuer) {
  const struct {
    QString Schalter, Von, Nach, Nummer, Rest;
  } faelle[] = {{u"0"_qs, QString(), QString(), u"00099"_qs, u"Herr|Österreich|1"_qs},
                {u"1"_qs, u"4711"_qs, QString(), u"00100"_qs, u"Herr|Österreich|1"_qs},
                {u"1"_qs, u"ATU1"_qs, QString(), u"4711"_qs, u"Herr|Österreich|2"_qs},
                {u"1"_qs, u">AT<"_qs, u">XX<"_qs, u"4711"_qs, u"Herr||3"_qs},
                {u"1"_qs, u">AT<"_qs, u">DE<"_qs, u"4711"_qs, u"Herr|Deutschland|0"_qs},
                {u"1"_qs, u">m<"_qs, u">f<"_qs, u"4711"_qs, u"Frau|Österreich|1"_qs},
                {u"1"_qs, u">m<"_qs, u">d<"_qs, u"4711"_qs, u"|Österreich|1"_qs}};
  for (const auto &fall : faelle) {
    ASSERT_TRUE(Ausfuehren("DELETE FROM Contacts"));
    Option_schreiben(u"Marklink"_qs, u"UseShopCustomerNumber"_qs, fall.Schalter);
    Kunde_im_Shop(fall.Von.isEmpty() ? Meier : QString(Meier).replace(fall.Von, fall.Nach));
    EXPECT_EQ(Uebernehmen().Kundennummer, fall.Nummer) << fall.Von.toStdString();
    EXPECT_EQ(Roh("SELECT Salutation, Country, TaxCalculation FROM Contacts"), fall.Rest);
  }
  EXPECT_TRUE(Zaehler().startsWith(u"00101 "_qs)) << "the shop's numbers leave the range alone";
}

TEST_P(Kundenuebernahme_Test, Vergebener_Suchname) {
  Mandant.Zeile(u"Contacts"_qs, {u"CustomerNumber"_qs, u"K1"_qs, u"Matchcode"_qs, u"Meier, Hans"_qs});
  Kunde_im_Shop(Meier);
  Dialoge.Erwarten_Eingabe(u"Suchname vergeben"_qs, u"Meier, Hans"_qs);  // not looked up again
  Fortschritt.ProgressAnzeigen(u"Lauf"_qs, 3);
  EXPECT_EQ(Uebernehmen().Suchname, u"Meier, Hans"_qs);
  EXPECT_EQ(Dialoge.Gezeigt.back().Zeilen,
            QStringList{u"Der Suchname 'Meier, Hans' existiert bereits.\r\nWeisen Sie dem Kunden bitte einen "
                        "eindeutigen Suchnamen zu."_qs});
  EXPECT_EQ(Dialoge.Gezeigt.back().Vorbelegung, u"Meier, Hans - Köln"_qs);
  EXPECT_EQ(Fortschritt.Ausgeblendet, 1);
  EXPECT_TRUE(Fortschritt.Sichtbar);

  // Another address is another customer.
  Dialoge.Erwarten_Eingabe(u"Suchname vergeben"_qs, QString());
  Dialoge.Erwarten(u"Hinweis"_qs);
  EXPECT_EQ(Uebernehmen({}, u"neu@example.de"_qs).Suchname, u"Meier, Hans, h.meier@example.de"_qs);
  EXPECT_EQ(Dialoge.Gezeigt.back().Zeilen,
            (QStringList{u"Sie haben leider keinen Suchnamen vergeben."_qs,
                         u"Es wird nun der Nachname, Vorname und die E-Mail-Adresse verwendet."_qs}));
}

TEST_P(Kundenuebernahme_Test, Was_nicht_geht) {
  for (const char *rumpf : {"<?xml version=\"1.0\"?><CUSTOMERS/>", "<?xml version=\"1.0\"?><CUSTOMERS",
                            "<?xml version=\"1.0\"?><STATUS><STATUS_DATA><MESSAGE>Nein.</MESSAGE>"
                            "</STATUS_DATA></STATUS>"}) {
    Antworten(rumpf);
    EXPECT_EQ(Uebernehmen().Stand, Ausgang::Nicht_im_Shop) << rumpf;
  }
  Kunde_im_Shop(QString(Meier).replace(u"1970-02-03"_qs, u"0000-00-00"_qs));
  EXPECT_EQ(Uebernehmen({}, u"o'neil@example.de"_qs).Stand, Ausgang::Nicht_gesucht);
  Option_schreiben(u"Formatting"_qs, u"Customer"_qs, QString());
  EXPECT_EQ(Uebernehmen().Stand, Ausgang::Ohne_Nummer);
  EXPECT_EQ(Roh("SELECT count(*) FROM Contacts"), u"0"_qs);
  EXPECT_EQ(Zaehler(), u"00099 0010009"_qs);

  // A field that the table lacks or cannot take costs only itself.
  ASSERT_TRUE(test::Rohe_Verbindung(Mandant.Datenbankdatei()).lauf("ALTER TABLE Contacts DROP COLUMN Fax"));
  db::Verbindungen_schliessen();  // as a program that starts with such a table
  Option_schreiben(u"Marklink"_qs, u"UseShopCustomerNumber"_qs, u"1"_qs);
  EXPECT_EQ(Uebernehmen(Bank).Kundennummer, u"4711"_qs);
  EXPECT_EQ(Roh("SELECT Birthday IS NULL, Telephone, BankCode FROM Contacts"), u"1|1|85050300"_qs);
}

TEST_P(Kundenuebernahme_Test, Lauf_ueber_die_markierten_Bestellungen) {
  for (const char *name : {"1", "2", "3", "4"}) {
    const QString nr = QLatin1String(name);
    Mandant.Zeile(u"WebshopOrdersXTC"_qs,
                  {u"OrderID"_qs, nr, u"Customer"_qs, u"Nr. "_qs + nr, u"Email"_qs, nr, u"CustomerID"_qs, nr,
                   u"InvoiceAddress"_qs, u"R"_qs + nr, u"DeliveryAddress"_qs, u"L"_qs, u"ExtendedInfo"_qs,
                   Bank, u"Invoice"_qs, nr != u"2"});
  }
  Auftragsliste liste;
  Dialoge.Erwarten(u"Hinweis"_qs);
  Kunden_anlegen(liste);
  EXPECT_EQ(Dialoge.Gezeigt.back().Zeilen,
            (QStringList{u"Es wurden keine Aufträge (Kunden) ausgewählt. "_qs,
                         u"Markieren Sie bitte alle Aufträge, für die Sie Kunden anlegen möchten."_qs}));
  EXPECT_EQ(Dialoge.Gezeigt.back().Bild, Symbol::Stopp);

  liste.Auftragsliste_laden();
  Shop.Antworten("get_customers", test::Shop_Antwort{"kaputt", 500});  // stops only its own customer
  Shop.Antworten("get_customers", "<?xml version=\"1.0\"?><CUSTOMERS><CUSTOMERS_DATA/></CUSTOMERS>");
  Dialoge.Erwarten(u"Fehler"_qs);
  Fortschritt.Texte.clear();
  Fortschritt.Werte.clear();
  Fortschritt.Abbrechen_bei = 2;
  Kunden_anlegen(liste);
  EXPECT_EQ(Dialoge.Gezeigt.back().Zeilen,
            (QStringList{u"Beim Einlesen des Kunden ist ein Fehler aufgetreten."_qs,
                         u"Der Kunde konnte nicht abgerufen und gespeichert werden."_qs}));
  EXPECT_EQ(Fortschritt.Texte.mid(0, 2),
            (QStringList{u"Der Kunde 'Nr. 1' wird angelegt bzw. aktualisiert..."_qs,
                         u"Der Kunde 'Nr. 3' wird angelegt bzw. aktualisiert..."_qs}));
  ASSERT_EQ(Shop.Anfragen().size(), 2U);
  EXPECT_EQ(Shop.Parameter(1), "&customers_id=3");
  EXPECT_EQ(Roh("SELECT InvoiceAddress, DeliveryAddress, BankCode FROM Contacts"), u"R3|L|85050300"_qs);
}

}  // namespace
}  // namespace marklink
