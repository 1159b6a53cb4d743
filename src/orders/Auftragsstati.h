// The order statuses of the shop as the order desk shows them.
#pragma once

#include "ui/Auftragsstatusliste.h"
#include "ui/Pruefliste.h"

namespace marklink {

/// Builds the status list (ui/Auftragsstatusliste.h), fills `lvwAuftragsstatus` with a row for each status
/// (text, WebshopID, Description; none checked) and gives the status list text.
QString Auftragsstati_initialisieren(Pruefliste &lvwAuftragsstatus);

}  // namespace marklink
