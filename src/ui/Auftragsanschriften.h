// The two addresses of a staged order.
#pragma once

#include <QString>

namespace marklink {

struct Auftragsanschriften {
  QString InvoiceAddress, DeliveryAddress;  ///< blocks of lines
};

/// Empty for an order that is not staged (any more).
Auftragsanschriften Auftrag_Anschriften_anzeigen(const QString &Bestellnummer);

}  // namespace marklink
