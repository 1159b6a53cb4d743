// A client with stock and staged orders.
#include "Stapelmandant.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>

#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zeichensatz.h"

namespace marklink::test {
namespace {

QString Q(const char *Text) { return QString::fromUtf8(Text); }

/// What the shop says of the customer that the request names.
Shop_Antwort Kundenantwort(const QByteArray &Kopf) {
  static const QRegularExpression kennung(QStringLiteral("customers_id=(\\d+)"));
  const QString k = kennung.match(QString::fromLatin1(Kopf)).captured(1);
  return {QStringLiteral(
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?><CUSTOMERS><CUSTOMERS_DATA><CUSTOMERS_ID>%1"
              "</CUSTOMERS_ID><EMAIL>k%1@example.de</EMAIL><GENDER>f</GENDER><FIRSTNAME>Änne</FIRSTNAME>"
              "<LASTNAME>Groß %1</LASTNAME><STREET>Am Ring %1</STREET><POSTCODE>01067</POSTCODE><CITY>Dresden"
              "</CITY><COUNTRY>DE</COUNTRY></CUSTOMERS_DATA></CUSTOMERS>")
              .arg(k)
              .toUtf8()};
}

/// Through the engine, since a server keeps the file open.
void Datenbank_kopieren(const QString &Von, const QString &Nach) {
  sqlite3 *von = nullptr, *nach = nullptr;
  sqlite3_open(QFile::encodeName(Von).constData(), &von);
  sqlite3_open(QFile::encodeName(Nach).constData(), &nach);
  sqlite3_backup *kopie = sqlite3_backup_init(nach, "main", von, "main");
  EXPECT_EQ(sqlite3_backup_step(kopie, -1), SQLITE_DONE) << sqlite3_errmsg(nach);
  sqlite3_backup_finish(kopie);
  sqlite3_close(von);
  sqlite3_close(nach);
}

void Ersetzen(const QString &Von, const QString &Nach) {
  QFile::remove(Nach);
  ASSERT_TRUE(QFile::copy(Von, Nach));
}

}  // namespace

Stapelmandant::Fluechtiger_Ort::Fluechtiger_Ort() : Vorher(qgetenv("TMPDIR")) {
  if (Vorher.isNull() && QFileInfo(u"/dev/shm"_qs).isWritable()) qputenv("TMPDIR", "/dev/shm");
}

Stapelmandant::Fluechtiger_Ort::~Fluechtiger_Ort() {
  if (Vorher.isNull()) qunsetenv("TMPDIR");
}

Stapelmandant::Stapelmandant(int Typ, int Buchung) : Mandant_(Typ) {
  const auto zeile = [this](const char *tabelle, const QVariantList &felder) {
    Mandant_.Zeile(Q(tabelle), felder);
  };
  zeile("Taxes", {u"TaxKeyNumber"_qs, u"1"_qs, u"Percentage"_qs, 19.0});
  zeile("Countries", {u"Token"_qs, u"DE"_qs, u"Description"_qs, u"Deutschland"_qs, u"EU"_qs, true});
  zeile("ArticleTypes", {u"Description"_qs, u"Ware"_qs, u"Stock"_qs, true});
  zeile("ArticleTypes", {u"Description"_qs, u"Dienst"_qs, u"Stock"_qs, false});
  zeile("PaymentPractices", {u"Description"_qs, u"14 Tage"_qs, u"PaymentPeriod"_qs, 14});
  zeile("MethodPayments", {u"Description"_qs, u"PayPal"_qs, u"Payment"_qs, true});
  zeile("MethodPayments", {u"Description"_qs, u"Lastschrift"_qs, u"DebitAdvice"_qs, true});
  zeile("ForwardingCharges", {u"Description"_qs, u"Paket"_qs, u"Costs"_qs, 4.9, u"VatCode"_qs, u"1"_qs});
  zeile("Forms", {u"Description"_qs, u"Standard"_qs, u"Type"_qs, u"Rechnung"_qs, u"Standard"_qs, true});
  // Documents of others stand where the counters are.
  zeile("Invoice",
        {u"InvoiceNumber"_qs, u"RE0007"_qs, u"TotalAmount"_qs, 11.9, u"Date"_qs, Zeitpunkt(Kontext.gHeute)});
  zeile("Contract", {u"ContractNumber"_qs, u"AB0007"_qs, u"TotalAmount"_qs, 11.9});
  for (const auto &[wort, nummer] : {std::pair{"Rechnung", "RE0007"}, {"Auftrag", "AB0007"}})
    zeile("Positions", {u"document"_qs, Q(wort), u"DocumentNumber"_qs, Q(nummer), u"LineItemNumber"_qs,
                        u"1"_qs, u"AllroundpriceGross"_qs, 11.9, u"StorageNumber"_qs, QString()});
  for (const auto &[kreis, kuerzel] : {std::pair{"Invoice", "RE"},
                                       {"Contract", "AB"},
                                       {"Reservation", "RES"},
                                       {"OpenItem", "OP"},
                                       {"Payment", "ZE"},
                                       {"Customer", "KD"}}) {
    Einstellen("Counting", kreis, "1");
    Einstellen("NumberRange", kreis, "0007");
    Einstellen("Formatting", kreis, "Kürzel;Leer;Nr.;Leer;Leer");
    Einstellen("Token", kreis, kuerzel);
  }
  for (const auto &[schluessel, wert] : {std::pair{"Taxation", "1"},
                                         {"AutoPaymentBooking", "1"},
                                         {"CashlessPaymentBooking", "1"},
                                         {"BackOrderAutoSave", "1"},
                                         {"ReservationUpdate", "0"},
                                         {"ConsignmentDays", "3"}})
    Einstellen("Program", schluessel, wert);
  Einstellen("Program", "StorageBooking", QByteArray::number(Buchung).constData());
  Einstellen("DATEV", "DebitorAccount", "7770000");
  Einstellen("Marklink", "UseShopCustomerNumber", "0");
  Shop_.Skript_setzen(Kundenantwort);
}

void Stapelmandant::Einstellen(const char *Abschnitt, const char *Schluessel, const char *Wert) {
  EXPECT_TRUE(Option_schreiben(Q(Abschnitt), Q(Schluessel), Q(Wert)));
}

void Stapelmandant::Artikel(int Shopnummer, const QString &Artikelart,
                            const std::map<QString, double> &Lose) {
  const QString nummer = QStringLiteral("A%1").arg(Shopnummer);
  double frei = 0;
  for (const auto &[los, menge] : Lose) {
    frei += menge;
    Mandant_.Zeile(u"Warehouse"_qs,
                   {u"StockingNumber"_qs, los, u"ArticleNumber"_qs, nummer, u"StorageNumber"_qs, u"01"_qs,
                    u"Date"_qs, Zeitpunkt(QDate(2024, 1, 1)), u"PurchasePrice"_qs, 3.5, u"Quantity"_qs, menge,
                    u"Disposable"_qs, menge, u"Unsociable"_qs, 0.0});
  }
  Mandant_.Zeile(u"Articles"_qs, {u"ArticleNumber"_qs,   nummer,
                                  u"ShortText"_qs,       u"Schuh "_qs + nummer,
                                  u"ArticleType"_qs,     Artikelart,
                                  u"VatCode"_qs,         u"1"_qs,
                                  u"NetPrice"_qs,        10.0,
                                  u"VatAmount"_qs,       1.9,
                                  u"GrossPrice"_qs,      11.9,
                                  u"Storage"_qs,         u"01"_qs,
                                  u"UnloadingPolicy"_qs, 0,
                                  u"WeightNet"_qs,       1.0,
                                  u"WeightGross"_qs,     1.25,
                                  u"Character"_qs,       false,
                                  u"WebshopID"_qs,       QString::number(Shopnummer),
                                  u"Disposable"_qs,      frei,
                                  u"Unsociable"_qs,      0.0});
}

void Stapelmandant::Bestellung(int Nummer, const QString &Zahlungsart,
                               const std::vector<std::pair<int, double>> &Zeilen) {
  QStringList positionen;
  for (const auto &[artikel, menge] : Zeilen)
    positionen << QStringLiteral("%1~%2~M~Schuh~0~10~").arg(artikel).arg(menge);
  Mandant_.Zeile(u"WebshopOrdersXTC"_qs,
                 {u"OrderID"_qs,
                  QString::number(Nummer),
                  u"CustomerID"_qs,
                  QString::number(Nummer),
                  u"Email"_qs,
                  QStringLiteral("k%1@example.de").arg(Nummer),
                  u"Date"_qs,
                  Zeitpunkt(Kontext.gHeute),
                  u"Rebate"_qs,
                  u"0.00"_qs,
                  u"Shipping"_qs,
                  u"Paket"_qs,
                  u"Payment"_qs,
                  Zahlungsart,
                  u"PaymentPractice"_qs,
                  u"14 Tage"_qs,
                  u"DeliveryCountry"_qs,
                  u"DE"_qs,
                  u"InvoiceAddress"_qs,
                  u"Am Ring"_qs,
                  u"ExtendedInfo"_qs,
                  u"Kontonummer: 1\r\nKreditinstitut: Bank\r\nBLZ: 2\r\nKontoinhaber: Groß"_qs,
                  u"Positions"_qs,
                  positionen.join(QChar(0xD7))});
}

void Stapelmandant::Shop_einrichten(const QStringList &Bestellungen) {
  const QByteArray antwort = "<?xml version=\"1.0\" encoding=\"windows-1252\"?><ORDER>" +
                             Nach_1252(Bestellungen.join(QString())) + "</ORDER>";
  Shop_.Skript_setzen([antwort](const QByteArray &kopf) {
    return kopf.contains("get_orders") ? Shop_Antwort{antwort} : Kundenantwort(kopf);
  });
  Einstellen("Marklink", "hostname", "127.0.0.1");
  Einstellen("Marklink", "port", QByteArray::number(Shop_.Port()).constData());
  Einstellen("Marklink", "folder", "/shop/");
  Einstellen("Marklink", "username", "u");
}

QString Stapelmandant::Einstellungsdatei() const { return Kontext.gAfkDatei; }

void Stapelmandant::Verlassen() const {
  db::Verbindungen_schliessen();
  while (Mandant_.Server() && Mandant_.Server()->Zahl("verbindungen") > 0) QThread::msleep(2);
}

void Stapelmandant::Sichern() {
  Verlassen();
  Datenbank_kopieren(Mandant_.Datenbankdatei(), Sicherung(Mandant_.Datenbankdatei()));
  if (!Einstellungsdatei().isEmpty()) Ersetzen(Einstellungsdatei(), Sicherung(Einstellungsdatei()));
}

void Stapelmandant::Zuruecksetzen() {
  Verlassen();
  Datenbank_kopieren(Sicherung(Mandant_.Datenbankdatei()), Mandant_.Datenbankdatei());
  if (!Einstellungsdatei().isEmpty()) Ersetzen(Sicherung(Einstellungsdatei()), Einstellungsdatei());
  Starten();
}

void Stapelmandant::Starten() {
  Mandant_.Starten();
  Shop_.Einsetzen();
}

QString Stapelmandant::Roh(const QString &Sql) const {
  return Rohe_Verbindung(Mandant_.Datenbankdatei()).lesen(Sql.toUtf8().constData());
}

QString Stapelmandant::Belegbild(const QString &Kopftabelle, int Nummer) const {
  const QString beleg =
      QStringLiteral(" IN (SELECT %1Number FROM %1 WHERE OrderingNumber = '%2') ORDER BY rowid")
          .arg(Kopftabelle)
          .arg(Nummer);
  QString bild =
      Roh(QStringLiteral("SELECT * FROM %1 WHERE OrderingNumber = '%2'").arg(Kopftabelle).arg(Nummer));
  for (const char *tabelle : {"Positions", "OpenItems", "PaymentIncome", "Reservations", "BackOrder"})
    bild +=
        u"\n--\n"_qs + Roh(QStringLiteral("SELECT * FROM %1 WHERE DocumentNumber").arg(Q(tabelle)) + beleg);
  bild +=
      u"\n--\n"_qs + Roh(QStringLiteral("SELECT * FROM Contacts WHERE Email = 'k%1@example.de'").arg(Nummer));
  static const QRegularExpression gezogen(
      QStringLiteral("\\b(RE|AB|RES|OP|ZE|KD)\\d{4}\\b|\\b(777)\\d{4}\\b|\\{[-0-9A-F]{36}\\}"));
  return bild.replace(gezogen, QStringLiteral("\\1\\2#"));
}

QString Stapelmandant::Ungereimtheit() const {
  static const std::pair<const char *, const char *> proben[] = {
      {"damaged file", "SELECT integrity_check FROM pragma_integrity_check WHERE integrity_check <> 'ok'"},
      {"lot whose parts are not the whole",
       "SELECT StockingNumber, Quantity, Disposable, Unsociable FROM Warehouse WHERE Disposable < 0 OR "
       "Unsociable < 0 "
       "OR abs(Quantity - Disposable - Unsociable) > 1e-9"},
      {"order with two documents",
       "SELECT OrderingNumber FROM (SELECT 1 AS t, OrderingNumber FROM Invoice WHERE Webshop <> 0 UNION ALL "
       "SELECT 2, "
       "OrderingNumber FROM Contract WHERE Webshop <> 0) GROUP BY t, OrderingNumber HAVING count(*) > 1"},
      {"line that stands twice",
       "SELECT document, DocumentNumber, LineItemNumber FROM Positions GROUP BY 1, 2, 3 HAVING count(*) > 1"},
      {"two open items of one document",
       "SELECT document, DocumentNumber FROM OpenItems GROUP BY 1, 2 HAVING count(*) > 1"},
      {"two payments of one document",
       "SELECT document, DocumentNumber FROM PaymentIncome GROUP BY 1, 2 HAVING count(*) > 1"},
      {"customer who stands twice", "SELECT Email FROM Contacts GROUP BY Email HAVING count(*) > 1"},
      {"document of somebody else that changed",
       "SELECT 'RE', count(*) FROM Positions WHERE DocumentNumber IN ('RE0007', 'AB0007') HAVING count(*) <> "
       "2 UNION "
       "SELECT InvoiceNumber, TotalAmount FROM Invoice WHERE InvoiceNumber = 'RE0007' AND (TotalAmount <> "
       "11.9 OR "
       "OrderingNumber <> '' OR Dispatch <> 0) UNION SELECT 'OP', count(*) FROM OpenItems WHERE "
       "DocumentNumber = "
       "'RE0007' HAVING count(*) > 0"},
      {"number that stands twice",
       "SELECT n FROM (SELECT 1 AS t, InvoiceNumber AS n FROM Invoice UNION ALL SELECT 2, ContractNumber "
       "FROM Contract "
       "UNION ALL SELECT 3, PaymentNumber FROM PaymentIncome UNION ALL SELECT 4, OpenItemNumber FROM "
       "OpenItems UNION "
       "ALL SELECT 5, ReservationNumber FROM Reservations UNION ALL SELECT 6, CustomerNumber FROM Contacts) "
       "GROUP BY "
       "t, n HAVING count(*) > 1"}};
  for (const auto &[was, sql] : proben)
    if (const QString treffer = Roh(Q(sql)); !treffer.isEmpty()) return Q(was) + u": "_qs + treffer;
  return {};
}

}  // namespace marklink::test
