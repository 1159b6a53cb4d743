// What stands in the columns of a shipment beyond the copy of its order.
#pragma once

#include <QString>
#include <QVariant>
#include <utility>
#include <vector>

#include "Versandauftrag.h"
#include "db/Recordset.h"

namespace marklink {

/// Column and value in the order of writing. `Bestellung` stands on the staged order.
std::vector<std::pair<const char *, QVariant>> Versandfelder_ermitteln(const Versandauftrag &Auftrag,
                                                                       const db::Recordset &Bestellung);

}  // namespace marklink
