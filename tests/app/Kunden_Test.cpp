// Customers and invoices of orders from the command line.
#include "Launcher.h"
#include "support/Shop_Attrappe.h"

namespace marklink::test {
namespace {

class Kunden_Test : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Typ, Kunden_Test, testing::Values(0, 1));

TEST_P(Kunden_Test, anlegen_und_Rechnung_zeigen) {
  Shop_Attrappe shop;
  const Launcher l;
  l.Mandant_mit_Shop(GetParam(), shop.Port());
  l.Einstellen("Marklink", "ViewablePeriod", u"1"_qs);  // the orders are older than what is looked at
  l.Sql(
      "INSERT INTO WebshopOrdersXTC (OrderID, CustomerID, Email, Date) VALUES ('1', '7', 'k7', '2020-01-01'),"
      "('2', '8', 'k8', '2020-01-01'), ('3', '7', 'k7', '2020-01-01')");
  l.Sql(
      "INSERT INTO Invoice (InvoiceNumber, OrderingNumber, Webshop) VALUES ('R1', '1', -1), ('R2', '1', 1)");
  shop.Skript_setzen([](const QByteArray &anfrage) {
    const QByteArray kunde = anfrage.contains("customers_id=7") ? "7" : "8";
    return Shop_Antwort{
        "<?xml version=\"1.0\" encoding=\"windows-1252\"?><CUSTOMERS><CUSTOMERS_DATA><EMAIL>k" + kunde +
        "</EMAIL><LASTNAME>Gro\xDF</LASTNAME><FIRSTNAME>Nr. " + kunde +
        "</FIRSTNAME></CUSTOMERS_DATA></CUSTOMERS>"};
  });
  const char *const neun = "marklink: Die Bestellung '9' ist nicht vorhanden.\n";
  const Befehlsfall faelle[] = {
      {"kunden anlegen", 2, "", "marklink: Es fehlen Bestellnummern"},
      {"kunden anlegen --alle 1", 2, "", "marklink: Entweder Bestellnummern oder '--alle', nicht beides."},
      {"kunden anlegen 9", 1, "", neun},
      {"kunden anlegen 9 2", 1, "2: 10001 Groß, Nr. 8\n", neun},
      {"kunden anlegen --alle", 0, "1: 10002 Groß, Nr. 7\n2: 10001 Groß, Nr. 8\n3: 10002 Groß, Nr. 7\n"},
      {"bestellungen rechnung 1", 0, GetParam() == 0 ? "R1\n" : "R2\n"},
      {"bestellungen rechnung 2", 1, "", "marklink: Für diese Bestellung liegt noch keine Rechnung vor."},
  };
  for (const Befehlsfall &fall : faelle) l.Pruefen(fall);
  l.Sql("UPDATE Contacts SET Email = 'x'");
  l.Pruefen({"kunden anlegen 1 --antwort Suchname_vergeben=Groß_II", 0, "1: 10003 Groß II\n",
             "[Suchname vergeben]"});
  shop.Skript_setzen([](const QByteArray &) { return Shop_Antwort{"", 500}; });
  l.Pruefen({"kunden anlegen 1", 1, "1: kein Kunde, der Shop hat nicht geantwortet\n", "[Fehler]"});
}

}  // namespace
}  // namespace marklink::test
