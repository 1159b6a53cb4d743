// The books for measuring invoices.
#include "Rechnungen_Buecher.h"

#include <sqlite3.h>

#include <QFile>

#include "db/Verbindung.h"
#include "host/Datenbank.h"
#include "host/Ini.h"
#include "host/Kontext.h"

namespace marklink::messung {
namespace {

QString Q(const char *Text) { return QString::fromUtf8(Text); }

struct Einstellung {
  const char *Abschnitt, *Schluessel, *Wert;
};

constexpr Einstellung EINSTELLUNGEN[] = {{"Program", "Taxation", "1"},
                                         {"Program", "ReservationUpdate", "0"},
                                         {"Program", "ReservationBooking", "1"},
                                         {"Program", "BackOrderAutoSave", "1"},
                                         {"Program", "ConsignmentDays", "3"},
                                         {"Program", "AutoPaymentBooking", "1"},
                                         {"Counting", "Invoice", "1"},
                                         {"Counting", "OpenItem", "1"},
                                         {"Counting", "Reservation", "1"},
                                         {"Formatting", "Invoice", "Kürzel;Leer;Nr.;Leer;Leer"},
                                         {"Formatting", "OpenItem", "Kürzel;Leer;Nr.;Leer;Leer"},
                                         {"Formatting", "Reservation", "Kürzel;Leer;Nr.;Leer;Leer"},
                                         {"Token", "Invoice", "RE"},
                                         {"Token", "OpenItem", "OP"},
                                         {"Token", "Reservation", "RES"}};
constexpr int SONSTIGE = 200;  ///< settings of the host's that stand beside them

class Schreiber {
 public:
  explicit Schreiber(const QString &Datei) {
    Gut = sqlite3_open(QFile::encodeName(Datei).constData(), &Db_) == SQLITE_OK;
    Lauf(Q("BEGIN"));
  }
  ~Schreiber() { sqlite3_close(Db_); }
  Schreiber(const Schreiber &) = delete;
  Schreiber &operator=(const Schreiber &) = delete;

  void Lauf(const QString &Sql) {
    Gut = Gut && sqlite3_exec(Db_, Sql.toUtf8().constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
    if (!Gut) std::fprintf(stderr, "%s\n", sqlite3_errmsg(Db_));
  }
  /// `Ziel`: table and columns; `Auswahl`: what stands in them for each n from 1 on.
  void Zeilen(const char *Ziel, int Anzahl, const QString &Auswahl) {
    Lauf(QStringLiteral(
             "INSERT INTO %1 WITH RECURSIVE z(n) AS (SELECT 1 UNION ALL SELECT n+1 FROM z WHERE n < %2) "
             "SELECT %3 FROM z WHERE n <= %2")
             .arg(Q(Ziel))
             .arg(Anzahl)
             .arg(Auswahl));
  }
  int Zahl(const QString &Sql) {
    sqlite3_stmt *s = nullptr;
    int zahl = -1;
    if (sqlite3_prepare_v2(Db_, Sql.toUtf8().constData(), -1, &s, nullptr) == SQLITE_OK &&
        sqlite3_step(s) == SQLITE_ROW)
      zahl = sqlite3_column_int(s, 0);
    sqlite3_finalize(s);
    return zahl;
  }
  bool Gut = false;

 private:
  sqlite3 *Db_ = nullptr;
};

void Stammdaten(Schreiber &S, int Wahr) {
  S.Lauf(Q("INSERT INTO Taxes (TaxKeyNumber, Percentage) VALUES ('1', 19.0), ('2', 7.0)"));
  S.Lauf(
      QStringLiteral(
          "INSERT INTO Countries (Token, Description, EU, Currency) VALUES ('DE', 'Deutschland', %1, 'EUR'), "
          "('AT', 'Österreich', %1, 'EUR'), ('CH', 'Schweiz', 0, 'CHF')")
          .arg(Wahr));
  S.Lauf(QStringLiteral("INSERT INTO ArticleTypes (Description, Stock) VALUES ('Ware', %1), ('Dienst', 0)")
             .arg(Wahr));
  S.Lauf(
      Q("INSERT INTO PaymentPractices (Description, PaymentPeriod, DiscountPeriod, Discount) VALUES ('14 "
        "Tage', "
        "14, 0, 0.0)"));
  S.Lauf(Q("INSERT INTO MethodPayments (Description, Token, Payment) VALUES ('Rechnung', 'invoice', 0)"));
  S.Lauf(Q(
      "INSERT INTO ForwardingCharges (Description, Token, Costs, VatCode) VALUES ('Paket', 'dp', 4.9, '1')"));
  S.Lauf(Q("INSERT INTO CustomerTypes (Description) VALUES ('Endkunde')"));
  S.Lauf(QStringLiteral(
             "INSERT INTO Forms (Description, Type, Standard) VALUES ('Rechnung neu', 'Rechnung', %1)")
             .arg(Wahr));
}

void Bewegliches(Schreiber &S, int Bestellungen) {
  S.Zeilen(
      "Articles (ArticleNumber, ShortText, LongText, ArticleType, ArticleGroup, ArticleGroup_fullpath, Unit, "
      "VatCode, NetPrice, VatAmount, GrossPrice, Storage, Disposable, Unsociable, UnloadingPolicy, "
      "WeightNet, "
      "WeightGross, Barcode, Character, WebshopID)",
      ARTIKEL,
      Q("printf('ART-%05d', n), 'Wanderschuh für Größen ab 36, Modell ' || n, 'Rahmengenäht, Leder. ' || "
        "hex(zeroblob(100)), 'Ware', 'Schuhe', 'Warengruppen\\Schuhe', 'Paar', '1', (n % 50 + 10) * 1.0, (n "
        "% 50 "
        "+ 10) * 0.19, (n % 50 + 10) * 1.19, '01', 20000.0, 0.0, 0, 1.0, 1.25, printf('40%08d', n), 0, n"));
  for (const char *los : {"a", "b"})
    S.Zeilen(
        "Warehouse (StockingNumber, Storage, StorageNumber, ArticleNumber, Supplier, SupplierNumber, Date, "
        "PurchasePrice, ChargeNumber, Quantity, Unsociable, Disposable)",
        ARTIKEL,
        QStringLiteral("printf('E%05d%1', n), 'Hauptlager', '01-A', printf('ART-%05d', n), 'Großhandel', "
                       "'70001', '2024-01-01 00:00:00', 5.5, 'CH' || n, 10000.0, 0.0, 10000.0")
            .arg(Q(los)));
  S.Zeilen(
      "Contacts (CustomerNumber, Matchcode, Email, Country, CustomerType, InvoiceAddress, DeliveryAddress, "
      "Impartation, TaxCalculation, Discount, WebshopID)",
      KUNDEN,
      Q("printf('K%05d', n), 'Großmann, Jürgen ' || n, 'k' || n || '@example.de', 'Deutschland', 'Endkunde', "
        "'Jürgen Großmann, Lange Straße ' || n || ', 01067 Dresden', 'Am Ring ' || n || ', 01067 Dresden', "
        "'E-Mail', 0, 0.0, n"));
  S.Zeilen(
      "WebshopOrdersXTC (OrderID, CustomerID, CustomerNumber, Customer, Email, Date, Rebate, Status, "
      "Payment, "
      "PaymentPractice, Shipping, DeliveryCountry, InvoiceAddress, DeliveryAddress, Positions)",
      Bestellungen,
      QStringLiteral(
          "100000 + n, n % %1 + 1, printf('K%05d', n % %1 + 1), 'Jürgen Großmann', 'k' || n || "
          "'@example.de', '2024-06-14 09:00:00', '0.00', '1', 'Rechnung', '14 Tage', 'Paket', 'DE', "
          "'Lange Straße', 'Am Ring', ((n * 7) % %2 + 1) || '~2~M~Schuh~0~10~×' || ((n * 7 + 500) % "
          "%2 + 1) || '~1~M~Schuh~0~10~×' || ((n * 7 + 900) % %2 + 1) || '~3~M~Schuh~0~10~'")
          .arg(KUNDEN)
          .arg(ARTIKEL));
}

void Frueheres(Schreiber &S, int Altbestand) {
  const QString kunde = QStringLiteral("printf('K%05d', n % %1 + 1)").arg(KUNDEN);
  S.Zeilen(
      "Invoice (InvoiceNumber, Form, Date, CustomerNumber, Customer, OrderingNumber, Address, "
      "DeliveryAddress, "
      "Employee, PaymentPractice, MethodPayment, Webshop, SubTotal, NetAmount, VatAmount, GrossAmount, "
      "TotalAmount, EmailAddress, DateCreation)",
      Altbestand,
      QStringLiteral("printf('RE%07d', n), 'Rechnung neu', '2023-05-01 00:00:00', %1, 'Großmann, Jürgen', n, "
                     "'Jürgen Großmann, Lange Straße, 01067 Dresden', 'Am Ring, 01067 Dresden', 'Chef', '14 "
                     "Tage', 'Rechnung', 1, 100.0, 84.03, 15.97, 100.0, 100.0, 'k@example.de', '2023-05-01 "
                     "10:00:00'")
          .arg(kunde));
  S.Zeilen(
      "OpenItems (OpenItemNumber, document, DocumentNumber, Date, ContactNumber, Amount, OutstandingAmount)",
      Altbestand,
      QStringLiteral(
          "printf('OP%07d', n), 'Rechnung', printf('RE%07d', n), '2023-05-01 00:00:00', %1, 100.0, 0.0")
          .arg(kunde));
  S.Zeilen(
      "Positions (document, DocumentNumber, LineItemNumber, SequentialNumber, ArticleNumber, ShortText, "
      "LongText, "
      "Quantity, VatCode, UnitpriceNet, UnitpriceGross, AllroundpriceNet, AllroundpriceGross, StorageNumber, "
      "ReservationNumber, Date)",
      Altbestand * 3,
      QStringLiteral(
          "'Rechnung', printf('RE%07d', (n + 2) / 3), printf('%03d', (n + 2) % 3 + 1), printf('%04d', "
          "(n + 2) % 3 + 1), printf('ART-%05d', n % %1 + 1), 'Wanderschuh für Größen ab 36', "
          "'Rahmengenäht, Leder. ' || hex(zeroblob(100)), 2.0, '1', 10.0, 11.9, 20.0, 23.8, "
          "printf('ART-%05d;01-A;2;E%05da;CH;5,5;RES%07d', n % %1 + 1, n % %1 + 1, n), "
          "printf('RES%07d', n), '2023-05-01 00:00:00'")
          .arg(ARTIKEL));
  S.Zeilen(
      "Reservations (ReservationNumber, StockingNumber, StorageNumber, ArticleNumber, Quantity, document, "
      "DocumentNumber, LineItemNumber)",
      Altbestand * 3,
      QStringLiteral(
          "printf('RES%07d', n), printf('E%05da', n % %1 + 1), '01-A', printf('ART-%05d', n % %1 + 1), "
          "2.0, 'Rechnung', printf('RE%07d', (n + 2) / 3), printf('%03d', (n + 2) % 3 + 1)")
          .arg(ARTIKEL));
}

/// Written at once, as the host would have left them.
bool Einstellungen_schreiben(Schreiber &S, const QString &Datei, int Typ, int Altbestand) {
  std::vector<std::array<QString, 3>> alle;
  for (const Einstellung &e : EINSTELLUNGEN) alle.push_back({Q(e.Abschnitt), Q(e.Schluessel), Q(e.Wert)});
  const auto zaehler = [](int n) { return QStringLiteral("%1").arg(n, 7, 10, QLatin1Char('0')); };
  alle.push_back({Q("NumberRange"), Q("Invoice"), zaehler(Altbestand + 1)});
  alle.push_back({Q("NumberRange"), Q("OpenItem"), zaehler(Altbestand + 1)});
  alle.push_back({Q("NumberRange"), Q("Reservation"), zaehler(Altbestand * 3 + 1)});
  for (int n = 0; n < SONSTIGE; ++n)
    alle.push_back({Q("Sonstiges"), QStringLiteral("Schluessel%1").arg(n), QStringLiteral("Wert %1").arg(n)});
  QString abschnitt, text;
  for (const auto &[a, s, w] : alle) {
    if (Typ == 1)
      S.Lauf(
          QStringLiteral("INSERT INTO Options (Section, Key, Value) VALUES ('%1', '%2', '%3')").arg(a, s, w));
    if (a != abschnitt) text += QStringLiteral("[%1]\r\n").arg(a);
    abschnitt = a;
    text += s + u'=' + w + QStringLiteral("\r\n");
  }
  if (Typ == 1) return true;
  QFile f(Datei);
  return f.open(QIODevice::WriteOnly) && f.write(text.toLatin1()) > 0;
}

}  // namespace

void Mandant_waehlen(const QString &Ordner, int Typ) {
  Kontext = {};
  Kontext.gFirmenname = Q("Messung");
  Kontext.gBenutzername = Q("Chef");
  Kontext.gBenutzer_Filiale = Q("Zentrale");
  Kontext.gHeute = QDate(2024, 6, 15);
  Kontext.gDatabasetype = qint16(Typ);
  Kontext.gSQL_True = Typ == 0 ? -1 : 1;
  Kontext.gPriceFormat = Q("#,##0.00");
  Kontext.gPreisNachkommastellen = 2;
  Kontext.gPositionFormat = Q("000");
  Kontext.gMassFormat = Q("#,##0.##");
  Kontext.gGewichtsformat = Q("##,#####0.000");
  Kontext.gCountry = Q("Deutschland");
  Kontext.gAfkDatei = Typ == 0 ? Ordner + Q("/buecher.afk") : QString();
  Kontext.gConnectionString =
      Typ == 0
          ? QStringLiteral("Provider=SQLite;Data Source=%1/buecher.mdb;Jet OLEDB:Database Password=481902")
                .arg(Ordner)
          : QStringLiteral("Provider=SQLite;Initial Catalog=buecher;Data Source=%1;Connect Timeout=30")
                .arg(Ordner);
  if (Typ == 1) Optionen_laden();
}

bool Buecher_anlegen(const QString &Ordner, int Typ, int Bestellungen, int Altbestand) {
  Mandant_waehlen(Ordner, Typ);
  const bool angelegt = db::Datenbank_anlegen(Kontext.gConnectionString);
  db::Verbindungen_schliessen();
  if (!angelegt) return false;
  Schreiber s(Ordner + Q("/buecher.mdb"));
  Stammdaten(s, Kontext.gSQL_True);
  Bewegliches(s, Bestellungen);
  Frueheres(s, Altbestand);
  if (!Einstellungen_schreiben(s, Ordner + Q("/buecher.afk"), Typ, Altbestand)) return false;
  s.Lauf(Q("COMMIT"));
  s.Lauf(Q("PRAGMA wal_checkpoint(TRUNCATE)"));
  return s.Gut;
}

int Abweichungen_zaehlen(const QString &Ordner, const QString &Anderer) {
  Schreiber s(Ordner + Q("/buecher.mdb"));
  s.Lauf(Q("COMMIT"));
  s.Lauf(QStringLiteral("ATTACH '%1/buecher.mdb' AS b").arg(Anderer));
  int summe = s.Gut ? 0 : -1;
  for (const char *tabelle : {"Invoice", "Positions", "OpenItems", "Reservations", "Warehouse", "Articles",
                              "LogisticsEASYLOG", "WebshopOrdersXTC", "Options"})
    for (const char *richtung : {"SELECT * FROM main.%1 EXCEPT SELECT * FROM b.%1",
                                 "SELECT * FROM b.%1 EXCEPT SELECT * FROM main.%1"}) {
      const int zahl = s.Zahl(QStringLiteral("SELECT count(*) FROM (%1)").arg(Q(richtung).arg(Q(tabelle))));
      if (zahl != 0) std::printf("  %s: %d Zeilen abweichend\n", tabelle, zahl);
      summe = zahl < 0 || summe < 0 ? -1 : summe + zahl;
    }
  return summe;
}

}  // namespace marklink::messung
