// Reading the values of options.
#include "Aufrufwerte.h"

#include "Ausgabe.h"

namespace marklink {

std::optional<int> Zahl_aus_Option(const Aufruf &A, const char *Option, int Vorgabe, int Kleinste,
                                   int Groesste) {
  if (!A.Gegeben(Option)) return Vorgabe;
  bool gueltig = false;
  const int zahl = A.Wert(Option).toInt(&gueltig);
  if (gueltig && zahl >= Kleinste && zahl <= Groesste) return zahl;
  Fehler_melden(QStringLiteral("Die Option '--%1' nimmt eine Zahl von %2 bis %3, nicht '%4'.")
                    .arg(QLatin1String(Option))
                    .arg(Kleinste)
                    .arg(Groesste)
                    .arg(A.Wert(Option)));
  return {};
}

std::optional<QStringList> Liste_aus_Option(const Aufruf &A, const char *Option) {
  if (!A.Gegeben(Option)) return QStringList();
  QStringList teile = A.Wert(Option).split(u',');
  for (QString &teil : teile) teil = teil.trimmed();
  if (!teile.contains(QString())) return teile;
  Fehler_melden(QStringLiteral("Die Option '--%1' nimmt eine Liste wie 1,3, nicht '%2'.")
                    .arg(QLatin1String(Option), A.Wert(Option)));
  return {};
}

}  // namespace marklink
