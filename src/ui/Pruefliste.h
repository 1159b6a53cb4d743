// A check list as data: rows with a check mark and several columns, one of them selected.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace marklink {

struct Listenzeile {
  bool Markiert = false;
  QStringList Spalten;  ///< column 0 is the row's text, 1.. its sub-columns
};

struct Pruefliste {
  std::vector<Listenzeile> Zeilen;
  int Gewaehlt = -1;  ///< index of the selected row, -1: none
};

/// Rows whose check mark equals `Markiert`.
int Zeilen_zaehlen(const Pruefliste &Liste, bool Markiert);
/// Selects the first row with that text in the column; without one the selection is cleared.
void Zeile_waehlen(Pruefliste &Liste, int Spalte, const QString &Text);
/// The column's cells of all checked rows, each between two quotes, joined by the separator.
QString Zeilen_verketten(const Pruefliste &Liste, int Spalte, const QString &Quote, const QString &Trenner);
/// The same cells as they are.
QStringList Zeilen_markierte(const Pruefliste &Liste, int Spalte);

}  // namespace marklink
