// Stock, reservations and back orders.
#include "Tabellen.h"

namespace marklink::db::schema {

std::vector<Tabelle> Lagertabellen() {
  return {
      {"Warehouse",
       {Nummer("StockingNumber"),
        Text("Storage"),
        Nummer("StorageNumber"),
        Nummer("ArticleNumber"),
        Text("ShortText"),
        Nummer("OrderNumber"),
        Nummer("SupplierNumber"),
        Text("Supplier"),
        Datum("Date"),
        Gleitkomma("PurchasePrice"),
        Datum("DateOfExpiry"),
        Nummer("ChargeNumber"),
        Text("Unit"),
        Gleitkomma("Quantity"),
        Gleitkomma("Unsociable"),
        Gleitkomma("Disposable"),
        Kurztext("ReferenceDocument"),
        Nummer("ReferenceDocumentNumber"),
        Kurztext("ReferenceLineItemNumber"),
        Nummer("WaresIncomeNumber"),
        Text("ArticleGroup"),
        Text("ArticleGroup_fullpath"),
        Text("Employee"),
        Memo("Annex")},
       {},
       {{"ArticleNumber"}, {"StockingNumber"}}},
      {"Reservations",
       {Nummer("ReservationNumber"), Ja_Nein("ReservationType"), Nummer("StockingNumber"),
        Nummer("StorageNumber"), Nummer("ArticleNumber"), Text("ShortText"), Datum("Date"), Text("Storage"),
        Datum("DateOfExpiry"), Nummer("SupplierNumber"), Text("Supplier"), Gleitkomma("Quantity"),
        Text("Unit"), Text("Employee"), Nummer("ChargeNumber"), Kurztext("document"),
        Nummer("DocumentNumber"), Kurztext("LineItemNumber")},
       {"ReservationNumber"},
       {{"document", "DocumentNumber"}, {"StockingNumber"}}},
      {"BackOrder",
       {Kurztext("uid"), Nummer("CustomerNumber"), Text("Customer"), Datum("Date"), Kurztext("document"),
        Nummer("DocumentNumber"), Kurztext("LineItemNumber"), Nummer("ArticleNumber"), Text("ShortText"),
        Gleitkomma("Quantity")},
       {"uid"},
       {{"document", "DocumentNumber"}}},
  };
}

}  // namespace marklink::db::schema
