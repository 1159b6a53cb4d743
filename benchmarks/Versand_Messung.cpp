// What exporting shipments costs, beside writing the same bytes and marking the same rows by hand, one
// transaction a row on either side. Usage: Versand_Messung [--schnell]. The two take turns, so that whatever
// else the machine does meets both.
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

#include "Messung.h"
#include "Rechnungen_Handarbeit.h"
#include "db/Verbindung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Zeichensatz.h"
#include "shipping/Versandexport.h"

namespace marklink::messung {
namespace {

constexpr double ZIEL = 3.0;
constexpr qsizetype GEWICHT = 27;  // place of the one field that is not written as it is

QString Datenbankdatei(const QString &Ordner) { return Ordner + QStringLiteral("/versand.mdb"); }
QString Exportdatei(const QString &Ordner) { return Ordner + QStringLiteral("/easylog.csv"); }

void Mandant_waehlen(const QString &Ordner, int Typ) {
  Kontext = {};
  Kontext.gDatabasetype = qint16(Typ);
  Kontext.gSQL_True = Typ == 0 ? -1 : 1;
  Kontext.gAfkDatei = Ordner + QStringLiteral("/versand.afk");
  Kontext.gConnectionString = Verbindung(Ordner, QStringLiteral("versand"), Typ);
}

QString Feldwert(int Zeile, qsizetype Feld) {
  if (Feld == GEWICHT) return QStringLiteral("%1,500").arg(Zeile % 20);
  // Half of the fields are empty, as in a real shipment.
  return Feld % 2 != 0 && Feld > 4 ? QString() : QStringLiteral("Größe %1 von Feld %2").arg(Zeile).arg(Feld);
}

bool Buecher_anlegen(const QString &Ordner, int Typ, int Anzahl) {
  Mandant_waehlen(Ordner, Typ);
  if (!db::Datenbank_anlegen(Kontext.gConnectionString)) return false;
  if (Typ == 1) Optionen_laden();
  for (const auto &[schluessel, wert] : {std::pair(QStringLiteral("file"), Exportdatei(Ordner)),
                                         std::pair(QStringLiteral("delimiter"), QStringLiteral("|"))})
    if (!Option_schreiben(QStringLiteral("easylog"), schluessel, wert)) return false;
  db::Recordset rs = Abfragen("SELECT * FROM LogisticsEASYLOG");
  for (int n = 0; n < Anzahl; ++n) {
    rs.AddNew();
    rs.SetValue(QStringLiteral("OrderID"), QString::number(100000 + n));
    for (qsizetype f = 0; f < Versandexport_Felder().size(); ++f)
      rs.SetValue(Versandexport_Felder()[f], Feldwert(n, f));
    rs.Update();
  }
  return rs.UpdateBatch();
}

/// The export by hand; false when something failed.
bool Von_Hand(const QString &Ordner, int Typ) {
  sqlite3 *db = nullptr;
  const QByteArray mdb = QFile::encodeName(Datenbankdatei(Ordner));
  if (sqlite3_open(mdb.constData(), &db) != SQLITE_OK) return false;
  sqlite3_exec(db, "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL", nullptr, nullptr, nullptr);
  const std::string felder = Versandexport_Felder().join(u',').toStdString();
  const int datei = open(QFile::encodeName(Exportdatei(Ordner)).constData(),
                         O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  bool gut = datei >= 0;
  {
    std::vector<std::pair<int, QByteArray>> zeilen;
    Satz lesen(db, "SELECT " + felder + ", rowid FROM LogisticsEASYLOG WHERE Conveyed = 0");
    const int anzahl = int(Versandexport_Felder().size());
    for (bool da = lesen.Lauf(); da; da = lesen.Weiter()) {
      std::string zeile;
      for (int f = 0; f < anzahl; ++f) {
        if (!zeile.empty()) zeile += '|';
        std::string text = lesen.Text(f);
        if (f == GEWICHT) text.pop_back();
        zeile += text;
      }
      zeilen.emplace_back(lesen.Ganz(anzahl), Nach_1252(QString::fromStdString(zeile)) + "\r\n");
    }
    lesen.Ende();
    Satz beginn(db, "BEGIN IMMEDIATE"), ende(db, "COMMIT");
    Satz marke(db, "UPDATE LogisticsEASYLOG SET Conveyed = ? WHERE rowid = ?");
    for (const auto &[nummer, zeile] : zeilen) {
      gut = gut && write(datei, zeile.constData(), size_t(zeile.size())) == zeile.size();
      beginn.Lauf();
      marke.Lauf(Typ == 0 ? -1 : 1, nummer);
      marke.Ende();
      ende.Lauf();
      ende.Ende();
      beginn.Ende();
    }
  }
  close(datei);
  sqlite3_close(db);
  return gut && Satz::Gut;
}

struct Lauf {
  double Sekunden = 1e9;
  QByteArray Datei;
  bool Gut = true;
};

void Messen(Lauf &L, const QString &Ordner, int Typ, int Anzahl, bool Hand) {
  L.Gut = L.Gut && Ausfuehren("UPDATE LogisticsEASYLOG SET Conveyed = 0");
  QFile::remove(Exportdatei(Ordner));
  db::Verbindungen_schliessen();
  QElapsedTimer uhr;
  uhr.start();
  L.Gut = L.Gut && (Hand ? Von_Hand(Ordner, Typ) : Versandliste_exportieren().Geschrieben == Anzahl);
  L.Sekunden = std::min(L.Sekunden, double(uhr.nsecsElapsed()) / 1e9);
  QFile datei(Exportdatei(Ordner));
  L.Gut = L.Gut && datei.open(QIODevice::ReadOnly) &&
          Abfragen("SELECT OrderID FROM LogisticsEASYLOG WHERE Conveyed = 0").RecordCount() == 0;
  L.Datei = datei.readAll();
}

bool Typ_messen(int Typ, int Anzahl, int Runden) {
  const QTemporaryDir ordner;
  if (!ordner.isValid() || !Buecher_anlegen(ordner.path(), Typ, Anzahl)) return false;
  Lauf produkt, hand;
  for (int runde = 0; runde < Runden; ++runde) {
    Messen(hand, ordner.path(), Typ, Anzahl, true);
    Messen(produkt, ordner.path(), Typ, Anzahl, false);
  }
  const double mal = produkt.Sekunden / hand.Sekunden;
  std::printf(
      "Typ %d: %d Versandaufträge, Bestes aus %d: %.3f s, von Hand %.3f s  %6.2f  (Ziel höchstens %.1f)%s\n",
      Typ, Anzahl, Runden, produkt.Sekunden, hand.Sekunden, mal, ZIEL, mal <= ZIEL ? "" : "  VERFEHLT");
  db::Verbindungen_schliessen();
  return produkt.Gut && hand.Gut && produkt.Datei == hand.Datei && !hand.Datei.isEmpty();
}

int Alles_messen(int Anzahl, int Runden) {
  bool gut = true;
  for (const int typ : {0, 1}) gut = Typ_messen(typ, Anzahl, Runden) && gut;
  if (!gut) std::fprintf(stderr, "FEHLER: die Dateien sind nicht gleich, oder etwas blieb offen.\n");
  return gut ? 0 : 1;
}

}  // namespace
}  // namespace marklink::messung

int main(int argc, char **argv) {
  const bool schnell = marklink::messung::Schnell(argc, argv);
  return schnell ? marklink::messung::Alles_messen(200, 1) : marklink::messung::Alles_messen(10000, 5);
}
