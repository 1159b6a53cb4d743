// Documents for all marked orders at once.
#include "Belegstapel.h"

#include "Stapellauf.h"
#include "host/Zahlen.h"

namespace marklink {

double Belegrabatt_lesen(const QString &Rebate) {
  const double rabatt = Rebate.contains(u',') ? Zahl_deutsch(Rebate).value_or(0.0) : Zahl_mit_Punkt(Rebate);
  return rabatt == 1.0 ? 0.0 : rabatt;
}

void Belege_erzeugen(int Art, Auftragsliste &Liste, const Belegmeldung &Ergebnis) {
  const auto zelle = [&Liste](int Zeile, const char *Spalte) {
    return Liste.Zelle(Zeile, Spalte).toString();
  };
  Stapellauf lauf;
  lauf.Ohne_Auswahl = Ohne_Auswahl_Belege();
  lauf.Ansage = [&zelle](int Zeile) {
    return QStringLiteral("Ein Beleg für die Bestellung '%1' wird generiert...").arg(zelle(Zeile, "OrderID"));
  };
  lauf.Arbeit = [&](int Zeile) {
    const Kundenuebernahme kunde =
        Kunde_uebernehmen(zelle(Zeile, "Email"), zelle(Zeile, "CustomerID"), zelle(Zeile, "InvoiceAddress"),
                          zelle(Zeile, "DeliveryAddress"), zelle(Zeile, "ExtendedInfo"));
    const Belegvorgabe vorgabe{
        zelle(Zeile, "OrderID"),         kunde.Kundennummer,       Belegrabatt_lesen(zelle(Zeile, "Rebate")),
        zelle(Zeile, "DeliveryCountry"), zelle(Zeile, "Shipping"), zelle(Zeile, "Payment"),
        zelle(Zeile, "PaymentPractice")};
    Belegergebnis ergebnis;
    if (Art == Stapel_Auftraege) ergebnis = Auftrag_erzeugen(vorgabe);
    if (Art == Stapel_Rechnungen) ergebnis = Rechnung_erzeugen(vorgabe);
    if (Ergebnis) Ergebnis(Zeile, kunde, ergebnis);
  };
  lauf.Immer_laden = true;  // the order desk does so behind these runs, however they end
  Markierte_abarbeiten(Liste, lauf);
}

}  // namespace marklink
