// Reading the values of options and arguments.
#include "Aufrufwerte.h"

#include <cmath>

#include "Ausgabe.h"
#include "host/Zahlen.h"

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

std::optional<double> Zahl_aus_Argument(const Aufruf &A, int Stelle) {
  const QString text = A.Argumente.value(Stelle);
  // "1.500" is one and a half to one reader and fifteen hundred to another: it is not taken.
  const bool zweideutig = text.contains(u'.') && !text.contains(u',') && Zahl_deutsch(text);
  if (const auto zahl = Zahl_deutsch(text); zahl && !zweideutig) return zahl;
  bool gueltig = false;
  const double zahl = text.toDouble(&gueltig);
  if (gueltig && std::isfinite(zahl) && !zweideutig) return zahl;
  Fehler_melden(QStringLiteral("%1 ist eine Zahl wie 1,5, nicht '%2'.")
                    .arg(A.Was->Argumente[size_t(Stelle)].Name, text));
  return {};
}

}  // namespace marklink
