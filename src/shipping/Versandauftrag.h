// The shipment record of an order for the shipper's software.
#pragma once

#include <QString>

namespace marklink {

struct Versandauftrag {
  QString Bestellnummer;   ///< of the staged order
  QString Referenznummer;  ///< the shipper's key of the parcel
  QString Beleg{}, Belegnummer{};
  QString Verwendungszweck{};
  QString Zahlart{};
  bool Meldung_zeigen = false;
};

/// Hands the order over for shipping. Shipments are not made yet: false, and nothing is written.
bool Versandauftrag_erzeugen(const Versandauftrag &Auftrag);

}  // namespace marklink
