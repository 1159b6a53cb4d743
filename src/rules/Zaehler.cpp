// The counter of a number range.
#include "Zaehler.h"

#include <cmath>

#include "host/Zahlen.h"

namespace marklink {
namespace {

/// Number text as the books write it: 15 significant digits, with an exponent from 1E+15 on.
QString Zaehlertext(double Zahl) {
  if (std::fabs(Zahl) < 1e15) return Zahl_als_Text(Zahl);
  return QString::number(Zahl, 'g', 15).toUpper().replace(u'.', u',');
}

}  // namespace

QString Zaehler_erhoehen(const QString &Zaehler) {
  const auto wert = Zahl_deutsch(Zaehler);
  if (!wert) return Zaehler;
  const QString neu = Zaehlertext(*wert + 1);
  return Zaehler.contains(u'0') ? neu.rightJustified(Zaehler.size(), u'0') : neu;
}

}  // namespace marklink
