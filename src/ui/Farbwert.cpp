// Colour values.
#include "Farbwert.h"

namespace marklink {

constexpr quint32 Hoechster_Wert = 0xFFFFFF;

namespace {
constexpr quint32 Gedreht(quint32 Wert) {
  return (Wert & 0xFFU) << 16U | (Wert & 0xFF00U) | (Wert >> 16U & 0xFFU);
}
}  // namespace

std::optional<quint32> Farbe_aus_Wert(qint32 Wert) {
  if (Wert < 0 || quint32(Wert) > Hoechster_Wert) return std::nullopt;
  return Gedreht(quint32(Wert));
}

qint32 Wert_aus_Farbe(quint32 RRGGBB) { return qint32(Gedreht(RRGGBB & Hoechster_Wert)); }

std::optional<qint32> Farbwert_lesen(const QString &Text) {
  bool gelesen = false;
  const int wert = Text.trimmed().toInt(&gelesen);
  if (!gelesen || !Farbe_aus_Wert(wert)) return std::nullopt;
  return wert;
}

bool Farbe_hell(quint32 RRGGBB) {
  // Luma of ITU-R BT.601: what is green looks bright, what is blue dark.
  const quint32 rot = RRGGBB >> 16U & 0xFFU, gruen = RRGGBB >> 8U & 0xFFU, blau = RRGGBB & 0xFFU;
  return rot * 299 + gruen * 587 + blau * 114 >= 128 * 1000;
}

}  // namespace marklink
