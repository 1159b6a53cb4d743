// Commercial rounding on the decimal value of a double.
#include <algorithm>
#include <charconv>
#include <cmath>

#include "Berechnung.h"

namespace marklink {
namespace {

constexpr double DEZIMAL_GRENZE = 7.9e28;
/// From here on a double has no room for a fraction that could be told from its noise.
constexpr double OHNE_NACHKOMMA = 1e15;

/// The whole number below the decimal value of `Zahl`: 15 significant digits, but always one decimal place,
/// since a half must stay a half, and never more than 14, since below 1 the noise is that of the 0.5 added.
double Ganzzahl_abwaerts(double Zahl) {
  const double betrag = std::fabs(Zahl);
  if (betrag >= OHNE_NACHKOMMA) return std::floor(Zahl);
  const int vorkomma = betrag < 1 ? 1 : int(std::floor(std::log10(betrag))) + 1;
  char ziffern[64];
  const auto ende = std::to_chars(std::begin(ziffern), std::end(ziffern), Zahl, std::chars_format::fixed,
                                  std::clamp(15 - vorkomma, 1, 14));
  double dezimal = Zahl;
  std::from_chars(std::begin(ziffern), ende.ptr, dezimal);
  return std::floor(dezimal);
}

}  // namespace

double Runden(double Wert, int Stellen) {
  const double potenz = std::pow(10.0, Stellen);
  const double summe = Wert * potenz + 0.5;
  if (!(std::fabs(summe) < DEZIMAL_GRENZE) || !(potenz > 0) || !std::isfinite(potenz)) return Wert;
  return Ganzzahl_abwaerts(summe) / potenz + 0.0;  // no negative zero
}

double Runden_5_Rappen(double Wert) { return std::floor(Wert * 20 + 0.5) / 20; }

}  // namespace marklink
