// Finding rows again that nothing numbers: by all that they hold.
#pragma once

#include <vector>

#include "Ergebnis.h"

namespace marklink::db {

/// For each row of `Gesuchte` the index of one of `Gefundene` that holds the same; -1 for none. Each is given
/// once, so that twins stay apart. A cell that is Ungewiss fits anything; the rows known best choose first.
std::vector<int> Inhalte_zuordnen(const Spaltensatz &Spalten, const std::vector<const Zelle *> &Gesuchte,
                                  const std::vector<const Zelle *> &Gefundene);

}  // namespace marklink::db
