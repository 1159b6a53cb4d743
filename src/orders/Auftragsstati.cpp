// Reading the order statuses.
#include "Auftragsstati.h"

namespace marklink {

QString Auftragsstati_initialisieren(Pruefliste &lvwAuftragsstatus) {
  lvwAuftragsstatus = {};
  for (const Auftragsstatus &status : Auftragsstatusliste_aufbauen())
    lvwAuftragsstatus.Zeilen.push_back({false, {status.Description, status.WebshopID, status.Description}});
  return gAuftragsstati_Liste;
}

}  // namespace marklink
