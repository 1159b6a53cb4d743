// Making a contract or an invoice of the host from a staged order.
//
// Nothing is undone: what was written stays, whatever fails behind it. A number that was drawn stays used.
#pragma once

#include <QString>

namespace marklink {

/// What the order desk hands over; what its user edited there wins over the staged row.
struct Belegvorgabe {
  QString Bestellnummer;  ///< empty: nothing is done
  QString Kundennummer;
  double Rabatt = 0;  ///< per cent on the document; 0: none
  QString Lieferland{};
  QString Versandart{}, Zahlungsart{}, Zahlungsbedingung{};  ///< empty: the customer's own
};

enum class Beleghindernis {
  Keines,  ///< head and positions are in the books
  Bestellung_fehlt,
  Kunde_fehlt,
  Ohne_Nummer,    ///< none could be drawn, or the user gave none
  Unvollstaendig  ///< a number was drawn, but something of head or positions could not be read or saved
};

struct Belegergebnis {
  QString Belegnummer{};  ///< empty when none was drawn, and so nothing made
  double Endbetrag = 0;
  Beleghindernis Hindernis = Beleghindernis::Ohne_Nummer;
};

/// Head in Contract, positions, and by the client's settings reservations, back orders and a shipment. A
/// failed step is reported with a message, and so is an order or customer that is not in the books: then no
/// number is drawn.
Belegergebnis Auftrag_erzeugen(const Belegvorgabe &Vorgabe);

/// The same in Invoice, and by the settings a payment, direct debit and accounting records; an open item
/// always.
Belegergebnis Rechnung_erzeugen(const Belegvorgabe &Vorgabe);

}  // namespace marklink
