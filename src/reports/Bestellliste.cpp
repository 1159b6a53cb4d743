// The order list, grouped by day.
#include "Listenbausteine.h"
#include "Listenbericht.h"

namespace marklink {

Bericht Bestellliste_beschreiben() {
  constexpr double summenrand = 148;
  Bericht liste = Liste_beginnen(QStringLiteral("Tennwerk Varda Bestellliste"), summenrand);
  liste[Bandart::Seitenkopf] =
      Seitenkopf_bilden({Beschriftung("lbBestellnummer", {1, 1.5, 21, 4}, u"Bestellnr."),
                         Beschriftung("lbVersandart", {23, 1.5, 30, 4}, u"Versandart"),
                         Beschriftung("lbDatum", {54, 1.5, 20, 4}, u"Datum"),
                         Beschriftung("lbKunde", {75, 1.5, 46, 4}, u"Kunde u. E-Mail-Adresse"),
                         Beschriftung("lbAuftragswert", {122, 1.5, 26, 4}, u"Auftragswert", Lage::Rechts),
                         Beschriftung("lbZahlungsart", {152, 1.5, 27, 4}, u"Zahlungsart")});
  Berichtselement wert = Textfeld("txtAuftragswert", {122, 1, 26, 4}, Lage::Rechts);
  wert.Format = QStringLiteral("#,##0.00");
  Berichtselement email = Textfeld("txtEmail", {75, 5, 73, 4});
  email.Verweis = true;
  std::vector<Berichtselement> klein = {
      Beschriftung("lbZahlungsinformationen", {23, 9.5, 74, 3.2}, u"Zahlungsinformationen"),
      Beschriftung("lbHinweise", {100, 9.5, 79, 3.2}, u"Hinweise des Kunden"),
      Textfeld("txtZahlungsinformationen", {23, 12.9, 74, 3.6}),
      Textfeld("txtHinweise", {100, 12.9, 79, 3.6})};
  for (Berichtselement &element : klein) element.Punkt = 8;
  klein[0].Fett = klein[1].Fett = true;
  Band &detail = liste[Bandart::Detail];
  detail = {17.5,
            {Textfeld("txtBestellnummer", {1, 1, 21, 4}), Textfeld("txtVersandart", {23, 1, 30, 4}),
             Textfeld("txtDatum", {54, 1, 20, 4}), Textfeld("txtKunde", {75, 1, 46, 4}), wert,
             Textfeld("txtZahlungsart", {152, 1, 27, 4}), email}};
  detail.Elemente.insert(detail.Elemente.end(), klein.begin(), klein.end());
  return liste;
}

}  // namespace marklink
