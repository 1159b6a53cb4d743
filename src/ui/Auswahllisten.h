// Selection lists: the values of a table for a combo box, and a table's standard row. The box itself is
// filled by clsComboFill.h.
#pragma once

#include <QStringList>

#include "db/Anweisung.h"

namespace marklink {

/// What a box is to offer: the empty entry, "Liste bearbeiten...", then the values of `Anzeigefeld` of
/// SELECT DISTINCT `Felder` (one or more, with commas) FROM `Tabelle` `Bedingung`. A failed query leaves the
/// values out.
QStringList Auswahlliste_lesen(const QString &Tabelle, const QString &Felder, const QString &Anzeigefeld,
                               const db::Anweisung &Bedingung, bool Bearbeiten, bool Leer);

/// The field of the first row that has `standard` set; empty without one.
QString Standardeintrag_lesen(const QString &Tabelle, const QString &Feld);

}  // namespace marklink
