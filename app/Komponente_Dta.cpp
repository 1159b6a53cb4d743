// The launcher's "dta.common": direct-debit bookings.
#include "Komponente.h"
#include "Launcher_Komponenten.h"

namespace marklink {
namespace {

QVariant Buchung_speichern(const QVariantList &Argumente) {
  return Buchungszeile_anlegen(
      "SELECT * FROM DTABookings", "BookingNumber",
      {"BookingType", "Executed", "Date", "AccountHolder", "AccountNumber", "Bankname", "BankCode", "Amount",
       "Purpose1", "Purpose2", "document", "DocumentNumber"},
      Argumente);
}

class Dta : public Komponente {
 public:
  Dta() : Komponente("dta.common", {{"Buchung_speichern", 12, &Buchung_speichern}}) {}
};

}  // namespace

std::unique_ptr<Host_Komponente> Dta_erzeugen() { return std::make_unique<Dta>(); }

}  // namespace marklink
