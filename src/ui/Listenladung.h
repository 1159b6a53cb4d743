// How a list of staged rows is loaded: under the period filter, with progress, into the list's row array.
#pragma once

#include <QString>
#include <vector>

#include "Zellenspeicher.h"
#include "db/Anweisung.h"
#include "db/Recordset.h"

namespace marklink {

/// The condition of the chosen period (Kontext.gViewablePeriod) on the field; empty when none is chosen.
db::Anweisung Zeitraumbedingung(const QString &Feld);

struct Listentexte {
  QString Titel;  ///< of the progress window
  QString Zeile;  ///< of each row, with %1 for its OrderID
};

/// Clears the cells and fills them from the set, a column a field; an empty field name leaves its column
/// null. Kontext.gLaeuft is set meanwhile; clearing it, or gAbbrechen, ends with the rows that are there.
void Zeilen_einlesen(Zellenspeicher &Zellen, db::Recordset &Satz, const std::vector<QString> &Felder,
                     const Listentexte &Texte);

}  // namespace marklink
