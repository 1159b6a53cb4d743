// Reference data: countries, taxes, units, employees, forms, settings.
#include "Tabellen.h"

namespace marklink::db::schema {

std::vector<Tabelle> Stammdatentabellen() {
  return {
      {"ArticleTypes",
       {Text("Description"), Ja_Nein("Stock"), Ja_Nein("Variant"), Ja_Nein("Standard")},
       {"Description"}},
      {"Countries",
       {Kurztext("Token"), Text("Description"), Ja_Nein("EU"), Kurztext("Currency"),
        Gleitkomma("FreeShippingAmount"), Memo("AddressFormat")},
       {"Token"},
       {{"Description"}}},
      {"Employees",
       {Text("Description"), Text("Store"), Nummer("StorageNumber"), Text("MailAccount"), Text("Password")},
       {"Description"}},
      {"Forms", {Text("Description"), Kurztext("Type"), Ja_Nein("Standard")}, {"Type", "Description"}},
      {"Impartations", {Text("Description"), Ja_Nein("Standard")}, {"Description"}},
      {"Options", {Nummer("Section"), Nummer("Key"), Text("Value")}, {"Section", "Key"}},
      {"Taxes",
       {Kurztext("TaxKeyNumber"), Gleitkomma("Percentage"), Kurztext("TaxRateEUVatID"),
        Kurztext("TaxRateEUNonVatID"), Kurztext("TaxRateNonEU"), Kurztext("WebshopID")},
       {"TaxKeyNumber"}},
      {"Units",
       {Text("Description"), Kurztext("WebshopID"), Ja_Nein("Active"), Ja_Nein("Standard")},
       {},
       {{"Description"}, {"WebshopID"}}},
  };
}

}  // namespace marklink::db::schema
