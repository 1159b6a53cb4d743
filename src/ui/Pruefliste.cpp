// Reading and selecting rows of a check list.
#include "Pruefliste.h"

#include <algorithm>

namespace marklink {

int Zeilen_zaehlen(const Pruefliste &Liste, bool Markiert) {
  return static_cast<int>(std::count_if(Liste.Zeilen.begin(), Liste.Zeilen.end(),
                                        [=](const Listenzeile &z) { return z.Markiert == Markiert; }));
}

void Zeile_waehlen(Pruefliste &Liste, int Spalte, const QString &Text) {
  // A row that lacks the column is no row with an empty cell there.
  const auto treffer = std::find_if(Liste.Zeilen.begin(), Liste.Zeilen.end(), [&](const Listenzeile &z) {
    return Spalte >= 0 && Spalte < z.Spalten.size() && z.Spalten.at(Spalte) == Text;
  });
  Liste.Gewaehlt = treffer == Liste.Zeilen.end() ? -1 : static_cast<int>(treffer - Liste.Zeilen.begin());
}

QString Zeilen_verketten(const Pruefliste &Liste, int Spalte, const QString &Quote, const QString &Trenner) {
  QStringList zellen = Zeilen_markierte(Liste, Spalte);
  for (QString &zelle : zellen) zelle = Quote + zelle + Quote;
  return zellen.join(Trenner);
}

QStringList Zeilen_markierte(const Pruefliste &Liste, int Spalte) {
  QStringList zellen;
  for (const Listenzeile &zeile : Liste.Zeilen)
    if (zeile.Markiert) zellen << zeile.Spalten.value(Spalte);
  return zellen;
}

}  // namespace marklink
