// Bank and card details of an order, as the customer's row keeps them. Never for a trace.
#pragma once

#include <QString>

#include "db/Recordset.h"

namespace marklink {

/// Reads an order's payment text (lines parted by CR LF, see Zahlungshinweis.h) into the current row of
/// Contacts. A line without its label gives the empty text; a text of neither shape, the empty one among
/// them, changes nothing.
void Zahlungsangaben_uebernehmen(db::Recordset &Satz, const QString &Text);

}  // namespace marklink
