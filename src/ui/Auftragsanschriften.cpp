// Reading an order's addresses.
#include "Auftragsanschriften.h"

#include "host/Datenbank.h"

namespace marklink {

Auftragsanschriften Auftrag_Anschriften_anzeigen(const QString &Bestellnummer) {
  const db::Recordset satz =
      Abfragen({"SELECT * FROM WebshopOrdersXTC WHERE OrderID = ", db::Wert{Bestellnummer}});
  return {satz.Text(QStringLiteral("InvoiceAddress")), satz.Text(QStringLiteral("DeliveryAddress"))};
}

}  // namespace marklink
