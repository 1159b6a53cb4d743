// What a page of scrolling costs in the grid: with 100,000 rows beside 100. Usage: Tabelle_Messung
// [--schnell]. Both sides take turns, so that whatever else the machine does meets each of them. Paints into
// a picture in memory, without a screen.
#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QImage>
#include <QScrollBar>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "Messung.h"
#include "ui/clsTabelle.h"

namespace marklink::messung {
namespace {

constexpr int WENIGE = 100, VIELE = 100'000;
constexpr double ZIEL = 1.2;

/// Orders that differ from row to row, kept as the order desk keeps its own.
class Auftraege : public Tabellenquelle {
 public:
  explicit Auftraege(int Anzahl) {
    Zeilen_.reserve(size_t(Anzahl));
    for (int i = 0; i < Anzahl; ++i)
      Zeilen_.push_back({QString::number(100'000 + i), QStringLiteral("Müller & Söhne Nr. %1").arg(i % 97),
                         QDateTime(QDate(2024, 1, 1).addDays(i % 365), QTime(10, 30)), 10.0 + i % 1000,
                         QStringLiteral("Hauptstraße %1\n12345 Berlin").arg(i % 200), i % 3 == 0});
  }
  int Zeilen() const override { return int(Zeilen_.size()); }
  QVariant Zelle(int Zeile, int Spalte) const override {
    const Auftrag &a = Zeilen_[size_t(Zeile)];
    switch (Spalte % 6) {
      case 0:
        return a.Markiert;
      case 1:
        return a.Nummer;
      case 2:
        return a.Kunde;
      case 3:
        return a.Datum;
      case 4:
        return a.Wert;
      default:
        return a.Anschrift;
    }
  }
  std::optional<qint32> Zeilenfarbe(int Zeile) const override {
    return Zeile % 4 == 0 ? std::optional<qint32>(0x80FFFF) : std::nullopt;
  }

 private:
  struct Auftrag {
    QString Nummer, Kunde;
    QDateTime Datum;
    double Wert;
    QString Anschrift;
    bool Markiert;
  };
  std::vector<Auftrag> Zeilen_;
};

std::vector<Tabellenspalte> Spalten() {
  using Art = Tabellenspalte::Art;
  const Art arten[] = {Art::Haken, Art::Text, Art::Text, Art::Text, Art::Zahl, Art::Text};
  std::vector<Tabellenspalte> spalten;
  for (int i = 0; i < 18; ++i) {
    Tabellenspalte spalte{QString::number(i), QStringLiteral("Spalte %1").arg(i), arten[i % 6]};
    if (i % 6 == 3) spalte.Format = QStringLiteral("dd.mm.yyyy hh:nn:ss");
    if (i % 6 == 4) spalte.Format = QStringLiteral("standard");
    spalten.push_back(spalte);
  }
  return spalten;
}

class Seite {
 public:
  explicit Seite(int Zeilen) : Quelle_(Zeilen), Bild_(1200, 700, QImage::Format_RGB32) {
    Grid_.Einrichten(Quelle_, Spalten());
    Grid_.resize(Bild_.size());
    Grid_.show();
    QCoreApplication::processEvents();
  }
  /// A page further, from the end back to the beginning; microseconds until it is painted.
  void Blaettern() {
    QScrollBar &leiste = *Grid_.verticalScrollBar();
    QElapsedTimer uhr;
    uhr.start();
    leiste.setValue(leiste.value() == leiste.maximum() ? 0 : leiste.value() + leiste.pageStep());
    Grid_.render(&Bild_);
    Seiten_.push_back(double(uhr.nsecsElapsed()) / 1e3);
  }
  double Mitte() const { return messung::Mitte(Seiten_); }
  int Gezeigt() const { return Grid_.verticalScrollBar()->pageStep(); }

 private:
  Auftraege Quelle_;
  clsTabelle Grid_;
  QImage Bild_;
  std::vector<double> Seiten_;
};

int Messen(int Runden) {
  Seite wenige(WENIGE), viele(VIELE);
  for (int i = 0; i < Runden; ++i) {
    wenige.Blaettern();
    viele.Blaettern();
  }
  const double verhaeltnis = viele.Mitte() / wenige.Mitte();
  std::printf("%d Seiten zu %d Zeilen blättern, Mitte.\n", Runden, viele.Gezeigt());
  std::printf("  mit %6d Zeilen %8.0f µs je Seite\n", WENIGE, wenige.Mitte());
  std::printf("  mit %6d Zeilen %8.0f µs je Seite\n", VIELE, viele.Mitte());
  std::printf("  Verhältnis %.2f  (Ziel höchstens %.1f)%s\n", verhaeltnis, ZIEL,
              verhaeltnis <= ZIEL ? "" : "  VERFEHLT");
  return viele.Gezeigt() > 10 ? 0 : 1;
}

}  // namespace
}  // namespace marklink::messung

int main(int argc, char **argv) {
  const bool schnell = marklink::messung::Schnell(argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication anwendung(argc, argv);
  return marklink::messung::Messen(schnell ? 40 : 400);
}
