// An invoice from a staged order.
#include "Belegvorgang.h"
#include "Rechnungsbuchungen.h"
#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "rules/Berechnung.h"
#include "rules/Zahlungsverkehr.h"

namespace marklink {
namespace {

/// What is to be paid within the cash discount period.
double Barbetrag(const Belegvorgang &Beleg) {
  const double betrag = Beleg.Endbetrag();
  return Zahlbetrag_runden(betrag - Skonto_Betrag(betrag, Beleg.Zahlungsbedingung(), Beleg.Versandart()));
}

void Rechnungsfelder_eintragen(Belegvorgang &Beleg) {
  db::Recordset &kopf = Beleg.Kopf();
  kopf.SetValue(QStringLiteral("CashAmount"), Barbetrag(Beleg));
  kopf.SetValue(QStringLiteral("DuePayment"),
                Tageswert(Zahlungsziel_ermitteln(Beleg.Zahlungsbedingung(), Kontext.gHeute)));
  kopf.SetValue(QStringLiteral("Paid"), false);
  kopf.SetValue(QStringLiteral("PaidDate"), QVariant());
  kopf.SetValue(QStringLiteral("InvoiceType"), 0);
}

}  // namespace

Belegergebnis Rechnung_erzeugen(const Belegvorgabe &Vorgabe) {
  Belegvorgang beleg(Belegart_Rechnung(), Vorgabe);
  if (!beleg.Beginnen()) return beleg.Ergebnis();
  beleg.Positionen_anlegen();
  beleg.Kopf_anlegen();
  Rechnungsfelder_eintragen(beleg);
  beleg.Kopf_speichern();
  // A head that could not be saved stops none of the bookings, on purpose.
  Offenen_Posten_anlegen(beleg, Zahlung_buchen(beleg));
  beleg.Bestand_reservieren();
  Lastschrift_buchen(beleg);
  Buchungssaetze_erzeugen(beleg);
  beleg.Versand_beauftragen();
  beleg.Beenden();
  return beleg.Ergebnis();
}

}  // namespace marklink
