// The transaction list, grouped by payment method.
#include "Listenbausteine.h"
#include "Listenbericht.h"

namespace marklink {

Bericht Transaktionsliste_beschreiben() {
  constexpr double summenrand = 112;
  Bericht liste = Liste_beginnen(QStringLiteral("Tennwerk Varda Transaktionsliste"), summenrand);
  liste[Bandart::Seitenkopf] = Seitenkopf_bilden(
      {Beschriftung("lbBestellnummer", {1, 1.5, 19, 4}, u"Bestellnr."),
       Beschriftung("lbDatum", {21, 1.5, 20, 4}, u"Datum"),
       Beschriftung("lbKunde", {42, 1.5, 45, 4}, u"Kunde"),
       Beschriftung("lbAuftragswert", {88, 1.5, 24, 4}, u"Auftragswert", Lage::Rechts),
       Beschriftung("lbZahlungsinformationen", {117, 1.5, 62, 4}, u"Zahlungsinformationen")});
  Berichtselement wert = Textfeld("txtAuftragswert", {88, 1, 24, 4}, Lage::Rechts);
  wert.Format = QStringLiteral("#,##0.00");
  liste[Bandart::Detail] = {
      6,
      {Textfeld("txtBestellnummer", {1, 1, 19, 4}), Textfeld("txtDatum", {21, 1, 20, 4}),
       Textfeld("txtKunde", {42, 1, 45, 4}), wert, Textfeld("txtZahlungsinformationen", {117, 1, 62, 4})}};
  return liste;
}

}  // namespace marklink
