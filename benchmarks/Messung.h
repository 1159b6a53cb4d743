// What the benchmarks share: a clock, the middle of what was measured, where a client's books lie.
#pragma once

#include <QElapsedTimer>
#include <QString>
#include <algorithm>
#include <cstring>
#include <vector>

namespace marklink::messung {

template <typename Tun>
double Sekunden(Tun T) {
  QElapsedTimer uhr;
  uhr.start();
  T();
  return double(uhr.nsecsElapsed()) / 1e9;
}

/// The median; of values that there are.
inline double Mitte(std::vector<double> Werte) {
  std::nth_element(Werte.begin(), Werte.begin() + qsizetype(Werte.size() / 2), Werte.end());
  return Werte[Werte.size() / 2];
}

/// The connection string for the database file <Name>.mdb in the folder, for a client of type 0 or 1.
inline QString Verbindung(const QString &Ordner, const QString &Name, int Typ) {
  return (Typ == 0
              ? QStringLiteral("Provider=SQLite;Data Source=%1/%2.mdb;Jet OLEDB:Database Password=481902")
              : QStringLiteral("Provider=SQLite;Initial Catalog=%2;Data Source=%1;Connect Timeout=30"))
      .arg(Ordner, Name);
}

/// A run that is only to show that the benchmark works.
inline bool Schnell(int argc, char **argv) { return argc > 1 && std::strcmp(argv[1], "--schnell") == 0; }

}  // namespace marklink::messung
