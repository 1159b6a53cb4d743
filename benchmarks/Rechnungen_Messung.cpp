// What making invoices costs: beside the least that it can cost, and with many invoices in the books already.
// Usage: Rechnungen_Messung [--schnell]. Each run is a process of its own, so that its peak memory is its
// own; the customers are in the books, the shop is not asked.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>

#include "Rechnungen_Buecher.h"
#include "Rechnungen_Untergrenze.h"
#include "db/Verbindung.h"
#include "host/Kontext.h"
#include "host/Uhr.h"
#include "orders/Belegerzeugung.h"

namespace marklink::messung {
namespace {

constexpr double ZIEL_GRENZE = 4.0;
constexpr double ZIEL_VIELE = 1.15;

class Stehende_Uhr : public Uhr {
 public:
  QDateTime Jetzt() const override {
    return QDateTime::fromString(QLatin1String(JETZT), QStringLiteral("yyyy-MM-dd hh:mm:ss"));
  }
};

int Produkt_abrechnen(const QString &Ordner, int Typ, int Bestellungen) {
  Mandant_waehlen(Ordner, Typ);
  int fertig = 0;
  for (int n = 1; n <= Bestellungen; ++n) {
    const Belegvorgabe vorgabe{QString::number(100000 + n),
                               QStringLiteral("K%1").arg(n % KUNDEN + 1, 5, 10, QLatin1Char('0')),
                               0,
                               QStringLiteral("DE"),
                               QStringLiteral("Paket"),
                               QStringLiteral("Rechnung"),
                               QStringLiteral("14 Tage")};
    if (Rechnung_erzeugen(vorgabe).Hindernis == Beleghindernis::Keines) ++fertig;
  }
  return fertig;
}

// --- one run in a process of its own ----------------------------------------------------------------------

struct Messwert {
  int Rechnungen = -1;
  double Sekunden = 0, Rechenzeit = 0, Spitze_MB = 0;
};

int Teil_ausfuehren(const char *Art, const char *Ordner, int Typ, int Bestellungen, int Altbestand) {
  Stehende_Uhr uhr;
  Uhr_setzen(&uhr);
  const QString ordner = QString::fromUtf8(Ordner);
  const auto beginn = std::chrono::steady_clock::now();
  int rechnungen = -1;
  if (std::strcmp(Art, "produkt") == 0)
    rechnungen = Produkt_abrechnen(ordner, Typ, Bestellungen);
  else if (std::strcmp(Art, "untergrenze") == 0)
    rechnungen = Untergrenze_abrechnen(Ordner, Typ, Bestellungen);
  else
    rechnungen = Buecher_anlegen(ordner, Typ, Bestellungen, Altbestand) ? Bestellungen : -1;
  const std::chrono::duration<double> dauer = std::chrono::steady_clock::now() - beginn;
  rusage verbrauch{};
  getrusage(RUSAGE_SELF, &verbrauch);
  const auto sekunden = [](const timeval &t) { return double(t.tv_sec) + double(t.tv_usec) / 1e6; };
  std::printf("%d %f %f %f\n", rechnungen, dauer.count(),
              sekunden(verbrauch.ru_utime) + sekunden(verbrauch.ru_stime),
              double(verbrauch.ru_maxrss) / 1024);
  db::Verbindungen_schliessen();
  Uhr_setzen(nullptr);
  return 0;
}

Messwert Teil_messen(const char *Art, const QString &Ordner, int Typ, int Bestellungen, int Altbestand) {
  Messwert wert;
  int rohr[2];
  if (pipe2(rohr, O_CLOEXEC) != 0) return wert;
  const QByteArray ordner = Ordner.toUtf8(), typ = QByteArray::number(Typ),
                   bestellungen = QByteArray::number(Bestellungen),
                   altbestand = QByteArray::number(Altbestand);
  const pid_t kind = fork();
  if (kind == 0) {
    dup2(rohr[1], STDOUT_FILENO);
    execl("/proc/self/exe", "Rechnungen_Messung", "--teil", Art, ordner.constData(), typ.constData(),
          bestellungen.constData(), altbestand.constData(), nullptr);
    _exit(127);
  }
  close(rohr[1]);
  FILE *ausgabe = fdopen(rohr[0], "r");
  if (std::fscanf(ausgabe, "%d %lf %lf %lf", &wert.Rechnungen, &wert.Sekunden, &wert.Rechenzeit,
                  &wert.Spitze_MB) != 4)
    wert.Rechnungen = -1;
  std::fclose(ausgabe);
  waitpid(kind, nullptr, 0);
  return wert;
}

// --- the measurement

struct Reihe {
  const char *Titel, *Art, *Buecher;
  Messwert Bestes{-1, 1e9, 1e9, 1e9};
  bool Gut = true;
};

class Messung {
 public:
  Messung(const QString &Ordner, int Typ, int Bestellungen)
      : Ordner_(Ordner), Typ_(Typ), Bestellungen_(Bestellungen) {}

  bool Vorbereiten(const char *Buecher, int Altbestand) const {
    return QDir().mkpath(Pfad(Buecher)) &&
           Teil_messen("vorbereiten", Pfad(Buecher), Typ_, Bestellungen_, Altbestand).Rechnungen ==
               Bestellungen_;
  }

  void Runde(Reihe &R) const {
    const QString arbeit = Pfad(R.Art) + QLatin1String(R.Buecher);
    R.Gut = R.Gut && Kopieren(Pfad(R.Buecher), arbeit);
    const Messwert w = Teil_messen(R.Art, arbeit, Typ_, Bestellungen_, 0);
    R.Gut = R.Gut && w.Rechnungen == Bestellungen_;
    R.Bestes.Sekunden = std::min(R.Bestes.Sekunden, w.Sekunden);
    R.Bestes.Rechenzeit = std::min(R.Bestes.Rechenzeit, w.Rechenzeit);
    R.Bestes.Spitze_MB = std::min(R.Bestes.Spitze_MB, w.Spitze_MB);
  }

  int Abweichungen() const {
    return Abweichungen_zaehlen(Pfad("produkt") + QStringLiteral("wenige"),
                                Pfad("untergrenze") + QStringLiteral("wenige"));
  }

 private:
  QString Pfad(const char *Name) const {
    return QStringLiteral("%1/typ%2%3").arg(Ordner_).arg(Typ_).arg(QLatin1String(Name));
  }
  static bool Kopieren(const QString &Von, const QString &Nach) {
    QDir(Nach).removeRecursively();
    if (!QDir().mkpath(Nach)) return false;
    for (const QString &name : {QStringLiteral("/buecher.mdb"), QStringLiteral("/buecher.afk")}) {
      if (!QFile::exists(Von + name)) continue;
      if (!QFile::copy(Von + name, Nach + name)) return false;
      // Else the run would wait for the disk that still takes the copy.
      QFile kopie(Nach + name);
      if (!kopie.open(QIODevice::ReadWrite) || fsync(kopie.handle()) != 0) return false;
    }
    return true;
  }

  QString Ordner_;
  int Typ_, Bestellungen_;
};

void Verhaeltnis_zeigen(const char *Was, double A, double B, double Ziel) {
  std::printf("  %-46s %6.2f  (Ziel höchstens %.2f)%s\n", Was, A / B, Ziel,
              A / B <= Ziel ? "" : "  VERFEHLT");
}

bool Typ_messen(const QString &Ordner, int Typ, int Bestellungen, int Viele, int Runden) {
  const Messung messung(Ordner, Typ, Bestellungen);
  if (!messung.Vorbereiten("wenige", Bestellungen) || !messung.Vorbereiten("viele", Viele)) {
    std::fprintf(stderr, "Die Messung konnte nicht vorbereitet werden.\n");
    return false;
  }
  Reihe viele{"mit vielen Rechnungen in den Büchern", "produkt", "viele"};
  Reihe grenze{"Untergrenze (von Hand)", "untergrenze", "wenige"};
  Reihe wenige{"mit wenigen Rechnungen in den Büchern", "produkt", "wenige"};
  for (int runde = 0; runde < Runden; ++runde)
    for (Reihe *reihe : {&viele, &grenze, &wenige}) messung.Runde(*reihe);
  std::printf(
      "Typ %d: %d Rechnungen zu je drei Positionen mit Lagerbuchung, %d und %d in den Büchern, Bestes aus "
      "%d.\n",
      Typ, Bestellungen, Bestellungen, Viele, Runden);
  for (const Reihe *reihe : {&grenze, &wenige, &viele})
    std::printf("  %-40s %8.3f s  (Rechenzeit %.3f s)  %7.1f MB\n", reihe->Titel, reihe->Bestes.Sekunden,
                reihe->Bestes.Rechenzeit, reihe->Bestes.Spitze_MB);
  Verhaeltnis_zeigen("Zeit zur Untergrenze", wenige.Bestes.Sekunden, grenze.Bestes.Sekunden, ZIEL_GRENZE);
  Verhaeltnis_zeigen("Rechenzeit zur Untergrenze", wenige.Bestes.Rechenzeit, grenze.Bestes.Rechenzeit,
                     ZIEL_GRENZE);
  Verhaeltnis_zeigen("Zeit viele zu wenigen", viele.Bestes.Sekunden, wenige.Bestes.Sekunden, ZIEL_VIELE);
  Verhaeltnis_zeigen("Rechenzeit viele zu wenigen", viele.Bestes.Rechenzeit, wenige.Bestes.Rechenzeit,
                     ZIEL_VIELE);
  Verhaeltnis_zeigen("Speicherspitze viele zu wenigen", viele.Bestes.Spitze_MB, wenige.Bestes.Spitze_MB,
                     ZIEL_VIELE);
  const int abweichungen = messung.Abweichungen();
  const bool gut = viele.Gut && grenze.Gut && wenige.Gut && abweichungen == 0;
  if (!gut) std::printf("FEHLER: nicht alle Rechnungen wurden gleich (%d Abweichungen).\n", abweichungen);
  return gut;
}

int Alles_messen(int Bestellungen, int Viele, int Runden) {
  const QTemporaryDir ordner;
  bool gut = ordner.isValid();
  // Type 0 waits for the disk at every counter, in the product and by hand: few rounds do.
  for (int typ = 0; gut && typ <= 1; ++typ)
    gut = Typ_messen(ordner.path(), typ, Bestellungen, Viele, typ == 0 ? std::min(Runden, 2) : Runden);
  return gut ? 0 : 1;
}

}  // namespace
}  // namespace marklink::messung

int main(int argc, char **argv) {
  using namespace marklink::messung;
  if (argc == 7 && std::strcmp(argv[1], "--teil") == 0)
    return Teil_ausfuehren(argv[2], argv[3], std::atoi(argv[4]), std::atoi(argv[5]), std::atoi(argv[6]));
  const bool schnell = argc > 1 && std::strcmp(argv[1], "--schnell") == 0;
  return schnell ? Alles_messen(50, 5000, 1) : Alles_messen(1000, 100000, 5);
}
