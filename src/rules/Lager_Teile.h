// Private to the stock booking: what its files share.
#pragma once

#include "db/Recordset.h"

namespace marklink {

/// The lines of a document.
db::Recordset Positionen_lesen(const QString &Beleg, const QString &Belegnummer);

}  // namespace marklink
