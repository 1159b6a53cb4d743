// A contract from a staged order.
#include "Belegvorgang.h"

namespace marklink {

Belegergebnis Auftrag_erzeugen(const Belegvorgabe &Vorgabe) {
  Belegvorgang beleg(Belegart_Auftrag(), Vorgabe);
  if (!beleg.Beginnen()) return beleg.Ergebnis();
  beleg.Positionen_anlegen();
  beleg.Kopf_anlegen();
  beleg.Kopf().SetValue(QStringLiteral("OrderStatus"), 0);
  beleg.Kopf_speichern();
  beleg.Bestand_reservieren();
  beleg.Versand_beauftragen();
  beleg.Beenden();
  return beleg.Ergebnis();
}

}  // namespace marklink
