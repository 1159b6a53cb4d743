// What loading the order desk costs: the staged orders into its rows, with the progress window, beside
// reading the same columns with the bare engine; and how much memory an order takes above its text. Usage:
// Auftragspult_Messung [--schnell]. Both sides take turns. Needs no screen.
#include <malloc.h>
#include <sqlite3.h>

#include <QApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

#include "Messung.h"
#include "db/Recordset.h"
#include "db/Verbindung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "orders/Auftragsliste.h"
#include "ui/clsOberflaeche.h"

namespace marklink::messung {
namespace {

constexpr double ZIEL_ZEIT = 2.0, ZIEL_BYTES = 400;

/// The bare engine on the file, for filling it and as the other side.
class Rohdatei {
 public:
  explicit Rohdatei(const QString &Datei) {
    sqlite3_open_v2(QFile::encodeName(Datei).constData(), &Db_, SQLITE_OPEN_READWRITE, nullptr);
  }
  ~Rohdatei() { sqlite3_close_v2(Db_); }
  Rohdatei(const Rohdatei &) = delete;
  Rohdatei &operator=(const Rohdatei &) = delete;

  bool Fuellen(int Anzahl);
  /// Steps over all rows in the desk's order and takes every column that the desk loads, as its text or
  /// number. Gives the bytes of text.
  qint64 Lesen();

 private:
  sqlite3 *Db_ = nullptr;
};

bool Rohdatei::Fuellen(int Anzahl) {
  const QByteArray sql =
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
      QByteArray::number(Anzahl) +
      ") INSERT INTO WebshopOrdersXTC (Invoice, OrderID, CustomerID, Customer, CustomerNumber, Telephone, "
      "Email, "
      "Date, Amount, Currency, Rebate, Shipping, Payment, ExtendedInfo, Notes, Status, OrderIP, "
      "InvoiceAddress, "
      "DeliveryAddress, DeliveryCountry, Positions) SELECT 0, 100000 + i, i % 4000, 'Jürgen Großmann ' || i, "
      "'K' || (i % 4000), '0351 ' || i, 'kunde' || i || '@example.de', '2024-0' || (1 + i % 9) || '-11 "
      "14:22:11', "
      "i % 900 + 0.9, 'EUR', '0.00', 'Paketversand', 'Vorkasse', '', 'Bitte nach 16 Uhr liefern.', i % 4 + "
      "1, "
      "'192.0.2.' || (i % 250), 'Herrn' || char(13, 10) || 'Jürgen Großmann' || char(13, 10) || 'Lange "
      "Straße ' "
      "|| i || char(13, 10) || '01067 Dresden', 'Lange Straße ' || i || char(13, 10) || '01067 Dresden', "
      "'Deutschland', i || '~2~ART-' || i || '~Wanderschuh für Größen ab 36~0~49,9~Größe 42' FROM n";
  return sqlite3_exec(Db_, sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

qint64 Rohdatei::Lesen() {
  QByteArray spalten;
  for (const Auftragsspalte &spalte : Auftragsspalten())
    if (spalte.Geladen) spalten += QByteArray(spalten.isEmpty() ? "" : ", ") + spalte.Schluessel;
  sqlite3_stmt *satz = nullptr;
  sqlite3_prepare_v2(Db_, "SELECT " + spalten + " FROM WebshopOrdersXTC ORDER BY OrderID, Date", -1, &satz,
                     nullptr);
  qint64 bytes = 0;
  while (sqlite3_step(satz) == SQLITE_ROW) {
    for (int i = 0; i < sqlite3_column_count(satz); ++i) {
      if (sqlite3_column_type(satz, i) == SQLITE_TEXT) {
        const QString text = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(satz, i)),
                                               sqlite3_column_bytes(satz, i));
        bytes += text.isNull() ? 0 : sqlite3_column_bytes(satz, i);
      } else {
        bytes += sqlite3_column_double(satz, i) < -1e300 ? 1 : 0;
      }
    }
  }
  sqlite3_finalize(satz);
  return bytes;
}

int Messen(bool Schnell) {
  const int anzahl = Schnell ? 10'000 : 100'000, runden = Schnell ? 3 : 5;
  const QTemporaryDir ordner;
  Kontext.gConnectionString = Verbindung(ordner.path(), QStringLiteral("Messung"), 0);
  if (!db::Datenbank_anlegen(Kontext.gConnectionString)) return 1;
  db::Verbindungen_schliessen();
  Rohdatei roh(ordner.path() + QStringLiteral("/Messung.mdb"));
  if (!roh.Fuellen(anzahl)) return 1;

  qint64 text = 0;
  std::vector<double> unten, pult, verhaeltnis;
  Auftragsliste liste;
  for (int i = 0; i < runden; ++i) {
    unten.push_back(Sekunden([&] { text = roh.Lesen(); }));
    pult.push_back(Sekunden([&] { liste.Auftragsliste_laden(); }));
    verhaeltnis.push_back(pult.back() / unten.back());
  }
  if (liste.Zeilenzahl() != anzahl) return 1;
  const auto belegt = [] {
    const auto info = mallinfo2();
    return double(info.uordblks + info.hblkhd);
  };
  const double mit = belegt();
  liste = {};
  const double je_auftrag = (mit - belegt() - double(text)) / anzahl;
  const bool schnell_genug = Mitte(verhaeltnis) <= ZIEL_ZEIT;
  std::printf("%d Aufträge: Auftragsliste %.3f s, SQLite %.3f s, Verhältnis %.2f (höchstens %.1f)%s\n",
              anzahl, Mitte(pult), Mitte(unten), Mitte(verhaeltnis), ZIEL_ZEIT,
              schnell_genug ? "" : "  VERFEHLT");
  std::printf("Speicher: %.0f Bytes je Auftrag über den Text hinaus (höchstens %.0f)\n", je_auftrag,
              ZIEL_BYTES);
  return je_auftrag <= ZIEL_BYTES ? 0 : 1;  // time hangs on what else the machine does
}

}  // namespace
}  // namespace marklink::messung

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication anwendung(argc, argv);
  marklink::Oberflaeche_einrichten();
  const bool schnell = marklink::messung::Schnell(argc, argv);
  const int ergebnis = marklink::messung::Messen(schnell);
  marklink::Oberflaeche_abbauen();
  return ergebnis;
}
