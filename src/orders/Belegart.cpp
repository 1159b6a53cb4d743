// What sets contracts and invoices apart.
#include "Belegart.h"

#include "host/Kontext.h"

namespace marklink {

bool Belegart::Bucht_Lager() const { return Kontext.gStorageBooking == Lagerbuchung; }

const Belegart &Belegart_Auftrag() {
  static const Belegart art{
      QStringLiteral("Auftrag"),
      QStringLiteral("Contract"),
      QStringLiteral("ContractNumber"),
      QStringLiteral("Contract"),
      QStringLiteral("Geben Sie bitte eine Auftragsnummer ein."),
      2,
      true,
      QStringLiteral("Bei der Erstellung der Auftragsbestätigung ist ein Fehler aufgetreten. "
                     "Die Auftragsbestätigung konnte nicht erstellt werden.")};
  return art;
}

const Belegart &Belegart_Rechnung() {
  static const Belegart art{QStringLiteral("Rechnung"),
                            QStringLiteral("Invoice"),
                            QStringLiteral("InvoiceNumber"),
                            QStringLiteral("Invoice"),
                            QStringLiteral("Geben Sie bitte eine Rechnungsnummer ein."),
                            0,
                            false,
                            QStringLiteral("Bei der Erstellung der Rechnung ist ein Fehler aufgetreten. "
                                           "Die Rechnung konnte nicht erstellt werden.")};
  return art;
}

}  // namespace marklink
