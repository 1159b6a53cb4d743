// What drawing a number costs in a table of many documents, beside one of few. Usage: Nummern_Messung
// [--schnell]. Both database types, with the number free at once and with one that is taken; the two tables
// take turns, so that whatever else the machine does meets both.
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "Messung.h"
#include "db/Verbindung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "rules/Nummernkreise.h"

namespace marklink::messung {
namespace {

constexpr int WENIGE = 1000;
constexpr int VIELE = 100000;
constexpr double ZIEL = 1.2;
// One measured stretch: long beside the clock, short beside the scheduler.
constexpr int ZIEHUNGEN_FREI = 200;
constexpr int ZIEHUNGEN_VERGEBEN = 10;

const QString Bereich = QStringLiteral("Invoice");

QString Zaehler(int n) { return QStringLiteral("%1").arg(n, 8, 10, QLatin1Char('0')); }
QString Nummer(int n) { return QStringLiteral("RÜ-2024/") + Zaehler(n); }

/// A client whose invoices are numbered from 1 to `Anzahl`.
struct Mandant {
  Mandant(const QString &Ordner, int Typ, int Anzahl_) : Anzahl(Anzahl_) {
    const QString name = QStringLiteral("t%1_%2").arg(Typ).arg(Anzahl);
    K.gHeute = QDate(2024, 6, 15);
    K.gDatabasetype = qint16(Typ);
    K.gSQL_True = Typ == 0 ? -1 : 1;
    K.gAfkDatei = Ordner + u'/' + name + QStringLiteral(".afk");
    K.gConnectionString = Verbindung(Ordner, name, Typ);
  }

  bool Anlegen() {
    Kontext = K;
    if (!db::Datenbank_anlegen(K.gConnectionString)) return false;
    Waehlen();
    db::Recordset rs = Abfragen("SELECT * FROM Invoice");
    for (int n = 1; n <= Anzahl; ++n) {
      rs.AddNew();
      rs.SetValue(QStringLiteral("InvoiceNumber"), Nummer(n));
      rs.SetValue(QStringLiteral("Customer"), QStringLiteral("Müller & Söhne, Dresden"));
      rs.Update();
    }
    return rs.UpdateBatch() &&
           Option_schreiben(QStringLiteral("Formatting"), Bereich, QStringLiteral("Kürzel;-;Jahr;/;Nr.")) &&
           Option_schreiben(QStringLiteral("Token"), Bereich, QStringLiteral("RÜ")) && Zaehler_stellen(1);
  }
  /// The program has one client at a time.
  void Waehlen() const {
    Kontext = K;
    if (K.gDatabasetype == 1) Optionen_laden();
  }
  /// The counter so that `Frei` numbers beyond the last one are skipped: 1 is free, 0 the last one taken.
  bool Zaehler_stellen(int Frei) const {
    return Option_schreiben(QStringLiteral("NumberRange"), Bereich, Zaehler(Anzahl + Frei));
  }

  Programmkontext K;
  int Anzahl;
};

QString Ziehen() {
  return Nummer_ziehen(QStringLiteral("Invoice"), QStringLiteral("InvoiceNumber"), Bereich);
}

/// Milliseconds of one drawing; negative when a number was wrong.
double Strecke(const Mandant &M, int Frei) {
  M.Waehlen();
  const QString erwartet = Nummer(M.Anzahl + 1);
  bool gut = M.Zaehler_stellen(Frei) && Ziehen() == erwartet;  // warms up what the change of client let go
  qint64 dauer = 0;
  const int ziehungen = Frei > 0 ? ZIEHUNGEN_FREI : ZIEHUNGEN_VERGEBEN;
  for (int i = 0; i < ziehungen; ++i) {
    if (Frei == 0) gut = M.Zaehler_stellen(Frei) && gut;  // the drawing has moved it
    QElapsedTimer uhr;
    uhr.start();
    const QString nummer = Ziehen();
    dauer += uhr.nsecsElapsed();
    gut = gut && nummer == erwartet;
  }
  return gut ? double(dauer) / 1e6 / ziehungen : -1.0;
}

/// False when a number was wrong.
bool Vergleichen(const Mandant &Klein, const Mandant &Gross, int Frei, int Runden) {
  std::vector<double> klein, gross;
  for (int runde = 0; runde < Runden; ++runde) {
    klein.push_back(Strecke(Klein, Frei));
    gross.push_back(Strecke(Gross, Frei));
    if (klein.back() < 0 || gross.back() < 0) return false;
  }
  const double a = Mitte(klein), b = Mitte(gross);
  std::printf("  Typ %d, %-16s %9.4f ms %9.4f ms  %6.2f  (Ziel höchstens %.1f)%s\n",
              int(Klein.K.gDatabasetype), Frei > 0 ? "Nummer frei" : "Nummer vergeben", a, b, b / a, ZIEL,
              b / a <= ZIEL ? "" : "  VERFEHLT");
  return true;
}

int Alles_messen(int Runden) {
  const QTemporaryDir ordner;
  std::printf("Eine Nummer ziehen, mit %d und mit %d Rechnungen; Mitte aus %d Strecken.\n", WENIGE, VIELE,
              Runden);
  bool gut = ordner.isValid();
  for (int typ = 0; gut && typ <= 1; ++typ) {
    Mandant klein(ordner.path(), typ, WENIGE), gross(ordner.path(), typ, VIELE);
    gut = klein.Anlegen() && gross.Anlegen() && Vergleichen(klein, gross, 1, Runden) &&
          Vergleichen(klein, gross, 0, Runden);
  }
  db::Verbindungen_schliessen();
  if (!gut) std::fprintf(stderr, "FEHLER: nicht alle Nummern waren richtig.\n");
  return gut ? 0 : 1;
}

}  // namespace
}  // namespace marklink::messung

int main(int argc, char **argv) {
  const bool schnell = marklink::messung::Schnell(argc, argv);
  return marklink::messung::Alles_messen(schnell ? 5 : 41);
}
