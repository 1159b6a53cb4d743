// What a printed list costs: the order list of 10,000 orders to PDF beside that of 1,000, in time and in the
// memory that its pages take; and the last pages of a long list beside its first ones. Usage: Bericht_Messung
// [--schnell]. Both sides take turns. Needs no screen.
#include <malloc.h>
#include <sqlite3.h>

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

#include "Messung.h"
#include "db/Verbindung.h"
#include "host/Kontext.h"
#include "reports/Berichtsausgabe.h"
#include "reports/Listenbericht.h"

namespace marklink::messung {
namespace {

constexpr int WENIGE = 1'000;
constexpr double ZIEL_ZEIT = 1.1, ZIEL_SEITE = 1.5;

bool Fuellen(const QString &Datei, int Anzahl) {
  sqlite3 *db = nullptr;
  sqlite3_open_v2(QFile::encodeName(Datei).constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
  const QByteArray sql =
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
      QByteArray::number(Anzahl) +
      ") INSERT INTO WebshopOrdersXTC (Invoice, OrderID, Customer, Email, Date, Amount, Shipping, Payment, "
      "ExtendedInfo, Notes) SELECT 0, 100000 + i, 'Jürgen Großmann ' || i, 'kunde' || i || '@example.de', "
      "datetime('2024-01-01', '+' || (i / 12) || ' days'), i % 900 + 0.9, 'Paketversand', 'Vorkasse', "
      "'Kontonummer: 0008568219' || char(13, 10) || 'BLZ: 99978900', CASE WHEN i % 3 = 0 THEN 'Bitte nach 16 "
      "Uhr liefern, sonst beim Nachbarn im Erdgeschoss abgeben und eine Karte einwerfen.' END FROM n";
  const bool gut = sqlite3_exec(db, sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
  sqlite3_close_v2(db);
  return gut;
}

Report Liste(int Anzahl) {
  auto daten = std::make_shared<Listenbericht>(Listenbericht::Art::Bestellliste);
  daten->Titeltext = QStringLiteral("Bestellliste");
  daten->mSQL = {"SELECT * FROM WebshopOrdersXTC WHERE OrderID <= ",
                 db::Wert{QString::number(100'000 + Anzahl)}, " ORDER BY Date ASC"};
  return Listenbericht::Report_Initialisieren(std::move(daten));
}

/// From the rows to the PDF; gives the pages.
int Ausgeben(int Anzahl) {
  Report report = Liste(Anzahl);
  QBuffer ziel;
  ziel.open(QIODevice::WriteOnly);
  const Seitensatz &satz = report.Run();
  return PDF_schreiben(satz, ziel) ? satz.Seiten() : 0;
}

int Seiten_vergleichen(int Viele, int Runden) {
  Report report = Liste(Viele);
  const std::size_t vorher = mallinfo2().uordblks;
  const Seitensatz &satz = report.Run();
  const auto je_seite = double(mallinfo2().uordblks - vorher) / satz.Seiten();
  QImage bild(800, 1131, QImage::Format_RGB32);
  const auto malen = [&](int seite) {
    return Sekunden([&] {
      QPainter maler(&bild);
      maler.scale(800 / mm(210), 800 / mm(210));
      satz.Malen(maler, seite);
    });
  };
  // Several pages at either end, since no page is like another.
  constexpr int seiten = 9;
  std::vector<double> erste, letzte;
  for (int i = 0; i < Runden * 3; ++i)
    for (int seite = 1; seite <= std::min(seiten, satz.Seiten() - 2); ++seite) {
      erste.push_back(malen(seite));
      letzte.push_back(malen(satz.Seiten() - 1 - seite));
    }
  const double verhaeltnis = Mitte(letzte) / Mitte(erste);
  std::printf(
      "  eine Seite vorn beim Blättern %.1f ms, hinten %.1f ms: Verhältnis %.2f (Ziel höchstens %.1f)%s\n",
      Mitte(erste) * 1e3, Mitte(letzte) * 1e3, verhaeltnis, ZIEL_SEITE,
      verhaeltnis <= ZIEL_SEITE ? "" : "  VERFEHLT");
  std::printf("  %.0f Bytes bleiben je Seite im Speicher\n", je_seite);
  return satz.Seiten();
}

int Messen(bool Schnell) {
  const int viele = Schnell ? 2'000 : 10'000, runden = Schnell ? 3 : 5;
  const QTemporaryDir ordner;
  Kontext.gConnectionString = Verbindung(ordner.path(), QStringLiteral("Messung"), 0);
  if (!db::Datenbank_anlegen(Kontext.gConnectionString)) return 1;
  db::Verbindungen_schliessen();
  if (!Fuellen(ordner.path() + QStringLiteral("/Messung.mdb"), viele)) return 1;
  int seiten = Ausgeben(10);  // fonts are loaded once
  std::vector<double> wenig, viel;
  for (int i = 0; i < runden; ++i) {
    // As many orders on either side, so that both meet the same amount of whatever else the machine does.
    wenig.push_back(Sekunden([&] {
      for (int liste = 0; liste < viele / WENIGE; ++liste) seiten = Ausgeben(WENIGE);
    }));
    viel.push_back(Sekunden([&] { seiten = Ausgeben(viele); }));
  }
  const double verhaeltnis = Mitte(viel) / Mitte(wenig);
  std::printf("Bestellliste als PDF, %d Seiten.\n", seiten);
  std::printf("  %2d Listen mit %6d Bestellungen %7.2f s\n", viele / WENIGE, WENIGE, Mitte(wenig));
  std::printf("   1 Liste  mit %6d Bestellungen %7.2f s\n", viele, Mitte(viel));
  std::printf("  je Bestellung: Verhältnis %.2f (Ziel höchstens %.1f)%s\n", verhaeltnis, ZIEL_ZEIT,
              verhaeltnis <= ZIEL_ZEIT ? "" : "  VERFEHLT");
  return seiten > 0 && Seiten_vergleichen(viele, runden) > 0 ? 0 : 1;
}

}  // namespace
}  // namespace marklink::messung

int main(int argc, char **argv) {
  const bool schnell = marklink::messung::Schnell(argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication anwendung(argc, argv);
  return marklink::messung::Messen(schnell);
}
