// The shipment of an order for the shipper's software: one row of LogisticsEASYLOG.
#pragma once

#include <QString>

namespace marklink {

struct Versandauftrag {
  QString Bestellnummer;   ///< of the staged order
  QString Referenznummer;  ///< the shipper's key of the parcel
  QString Beleg{}, Belegnummer{};
  QString Verwendungszweck{};
  QString Zahlart{};  ///< decides on cash on delivery; empty: none
  bool Meldung_zeigen = false;
};

/// Hands the order over for shipping: its row of LogisticsEASYLOG is made, or made anew and to be exported
/// again, and the order is marked with `Logistic`. A country that is empty, unknown or cannot be looked up
/// ships as "NATIONAL"; a payment method likewise is no cash on delivery; a value that the workbook does not
/// give stays empty.
/// False, with nothing written and nothing shown, when order or shipment cannot be read, there is no such
/// order, or the shipment cannot be written.
bool Versandauftrag_erzeugen(const Versandauftrag &Auftrag);

/// A street as the shipper wants it, in capitals.
struct Strassenteile {
  QString Strasse, Hausnummer, Zusatz;
};

/// Street up to the first digit, the number from there, and all the rest, blanks included:
/// "Hauptstr. 12a" -> "HAUPTSTR. ", "12", "A". Without a digit all is street.
Strassenteile Strasse_zerlegen(const QString &Text);

}  // namespace marklink
