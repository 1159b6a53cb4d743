// Staged shop orders.
#include "Tabellen.h"

namespace marklink::db::schema {

std::vector<Spalte> Bestellspalten() {
  return {Nummer("OrderID"),
          Kurztext("CustomerID"),
          Text("Customer"),
          Nummer("CustomerNumber"),
          Text("Telephone"),
          Text("Email"),
          Text("VatID"),
          Text("CustomerType"),
          Kurztext("Rebate"),
          Kurztext("Status"),
          Datum("Date"),
          Text("OrderIP"),
          Kurztext("Currency"),
          Gleitkomma("Amount"),
          Memo("Notes"),
          Ja_Nein("Invoice"),
          Text("Payment"),
          Text("PaymentPractice"),
          Text("Shipping"),
          Memo("ExtendedInfo"),
          Text("InvoiceCompany"),
          Text("InvoiceName"),
          Text("InvoiceFirstname"),
          Text("InvoiceLastname"),
          Text("InvoiceStreet"),
          Text("InvoicePostcode"),
          Text("InvoiceCity"),
          Text("InvoiceSuburb"),
          Text("InvoiceCountry"),
          Memo("InvoiceAddress"),
          Text("DeliveryCompany"),
          Text("DeliveryName"),
          Text("DeliveryFirstname"),
          Text("DeliveryLastname"),
          Text("DeliveryStreet"),
          Text("DeliveryPostcode"),
          Text("DeliveryCity"),
          Text("DeliverySuburb"),
          Text("DeliveryCountry"),
          Memo("DeliveryAddress"),
          Memo("Positions"),
          Kurzzahl("Logistic")};
}

std::vector<Tabelle> Bestelltabellen() {
  return {
      {"WebshopOrdersXTC", Bestellspalten(), {"OrderID"}, {{"Date"}, {"Status"}}},
  };
}

}  // namespace marklink::db::schema
