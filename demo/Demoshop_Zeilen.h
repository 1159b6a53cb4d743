// Small helpers for those who make rows of the demo shop.
#pragma once

#include "Demoshop.h"

namespace marklink::demo {

constexpr int Englisch_Id = 1, Deutsch_Id = 2;

/// "2024-06-30 10:00:00"; an invalid time is the shop's zero date.
inline QString Zeitpunkt(const QDateTime &Z) {
  return Z.isValid() ? Z.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))
                     : QStringLiteral("0000-00-00 00:00:00");
}

/// When the shop was set up.
inline QDateTime Einrichtung(const Demodaten &D) { return QDateTime(D.Heute.addDays(-1000), QTime(10, 0)); }

inline double Euro(Cent Wert) { return static_cast<double>(Wert) / 100; }
inline double Euro_fein(Feinpreis Wert) { return static_cast<double>(Wert) / 10000; }

/// The shop's units; number = place + 1. First those that every new client knows, then what the articles
/// need.
inline QStringList Einheitenliste(const Demodaten &D) {
  QStringList Liste{QStringLiteral("Stück"),     QStringLiteral("Paar"),   QStringLiteral("Set"),
                    QStringLiteral("Packung"),   QStringLiteral("Meter"),  QStringLiteral("Liter"),
                    QStringLiteral("Kilogramm"), QStringLiteral("100 ml"), QStringLiteral("100 g")};
  for (const Artikel &A : D.Artikel_)
    if (!Liste.contains(A.Einheit)) Liste << A.Einheit;
  return Liste;
}

/// The pieces of one combination of choices; adds up to the article's stock.
inline int Bestand_Kombination(const Artikel &A, std::size_t Nummer, std::size_t Anzahl) {
  const int n = static_cast<int>(Anzahl);
  return A.Bestand / n + (static_cast<int>(Nummer) < A.Bestand % n ? 1 : 0);
}

}  // namespace marklink::demo
