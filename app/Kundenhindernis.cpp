// Why an order has no customer in the books.
#include "Kundenhindernis.h"

namespace marklink {

QString Kundenhindernis(const Kundenuebernahme &Kunde) {
  switch (Kunde.Stand) {
    case Kundenuebernahme::Ausgang::Ohne_Antwort:
      return QStringLiteral("der Shop hat nicht geantwortet");
    case Kundenuebernahme::Ausgang::Nicht_im_Shop:
      return Kunde.Shopmeldung.isEmpty() ? QStringLiteral("der Shop kennt den Kunden nicht")
                                         : QStringLiteral("der Shop meldet: ") + Kunde.Shopmeldung;
    case Kundenuebernahme::Ausgang::Nicht_gesucht:
      return QStringLiteral("nach seiner E-Mail-Adresse kann nicht gesucht werden");
    case Kundenuebernahme::Ausgang::Ohne_Nummer:
      return QStringLiteral("der Nummernkreis gibt keine Kundennummer");
    case Kundenuebernahme::Ausgang::Nicht_gespeichert:
      return QStringLiteral("er konnte nicht gespeichert werden; ist seine Kundennummer vergeben?");
    case Kundenuebernahme::Ausgang::Gespeichert:
      break;
  }
  return {};
}

}  // namespace marklink
