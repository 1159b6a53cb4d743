// The shipment record of an order.
#include "Versandauftrag.h"

#include "db/Ablaufverfolgung.h"

namespace marklink {

bool Versandauftrag_erzeugen(const Versandauftrag &Auftrag) {
  Ablauf_melden(QStringLiteral("Versandauftrag_erzeugen"),
                QStringLiteral("no shipment made for order ") + Auftrag.Bestellnummer);
  return false;
}

}  // namespace marklink
