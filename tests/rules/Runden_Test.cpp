// Rounding, beside exact arithmetic on scaled integers.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "rules/Berechnung.h"

namespace marklink::test {
namespace {

__extension__ typedef __int128 Gross;

Gross Abwaerts_teilen(Gross Zaehler, Gross Nenner) {
  const Gross ganz = Zaehler / Nenner;
  return Zaehler % Nenner < 0 ? ganz - 1 : ganz;
}

constexpr qint64 ZEHNER[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000};

TEST(Runden, Tafel) {
  const struct {
    double Wert;
    int Stellen;
    double Erwartet;
  } tafel[] = {
      {2.675, 2, 2.68},
      {1.005, 2, 1.01},
      {-1.005, 2, -1.00},
      {-1.006, 2, -1.01},
      {0.5, 0, 1},
      {-0.5, 0, 0},
      {-1.5, 0, -1},
      {2.5, 0, 3},
      {1234.5, -2, 1200},
      {0, 2, 0},
      {8.325, 2, 8.33},
      {1e-9, 2, 0},
      {-1e-9, 2, 0},
      {9.995, 2, 10},
      {999999.995, 2, 1e6},
      {1e15 + 1, 0, 1e15 + 1},
      {123456789012345.0, 0, 123456789012345.0},
      {1e27, 2, 1e27},
      {-1e300, 2, -1e300},
      {1.5, 400, 1.5},
      {1.5, -400, 1.5},
  };
  for (const auto &t : tafel) EXPECT_EQ(Runden(t.Wert, t.Stellen), t.Erwartet) << t.Wert << ' ' << t.Stellen;
  EXPECT_FALSE(std::signbit(Runden(-0.5, 0)));
  EXPECT_TRUE(std::isnan(Runden(std::numeric_limits<double>::quiet_NaN(), 2)));
}

TEST(Runden, auf_ein_Zwanzigstel) {
  const std::pair<double, double> tafel[] = {{10.02, 10.00}, {10.03, 10.05}, {0, 0},
                                             {7.5, 7.5},     {-0.02, 0.00},  {-0.03, -0.05}};
  for (const auto &[wert, erwartet] : tafel) EXPECT_DOUBLE_EQ(Runden_5_Rappen(wert), erwartet) << wert;
}

TEST(Runden, gleicht_der_Rechnung_mit_ganzen_Zahlen) {
  std::mt19937_64 zufall(20240615);
  const auto bis = [&zufall](qint64 grenze) { return qint64(zufall() % quint64(grenze)); };
  for (int fall = 0; fall < 40000; ++fall) {
    const int stellen = int(bis(5)), nachkomma = int(bis(8));
    qint64 ziffern = bis(ZEHNER[1 + bis(7)] * 10000);
    if (fall % 2 == 0 && nachkomma > stellen)  // a half of the last place kept
      ziffern = ziffern / ZEHNER[nachkomma - stellen] * ZEHNER[nachkomma - stellen] +
                ZEHNER[nachkomma - stellen] / 2;
    if (fall % 3 == 0) ziffern = -ziffern;
    const double wert = double(ziffern) / double(ZEHNER[nachkomma]);
    const Gross erwartet =
        Abwaerts_teilen(2 * Gross(ziffern) * ZEHNER[stellen] + ZEHNER[nachkomma], 2 * ZEHNER[nachkomma]);
    ASSERT_EQ(Runden(wert, stellen), double(qint64(erwartet)) / double(ZEHNER[stellen]))
        << ziffern << " / 10^" << nachkomma << " auf " << stellen;
  }
}

}  // namespace
}  // namespace marklink::test
