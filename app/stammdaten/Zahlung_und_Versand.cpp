// Payment methods and terms, shipping methods. Tokens are the shop's module codes; a code that is missing
// here leaves the staged order without a payment or shipping method.
#include "Teile.h"

namespace marklink::app {

namespace {

Stammtabelle Zahlungsarten() {
  return Tabelle_bilden(
      "MethodPayments",
      "Description Token Payment DebitAdvice CashOnDelivery TransferAccount PaymentFee CashAccount Active "
      "Standard",
      {{"Rechnung", "invoice", false, false, false, false, 0.0, "1200", true, true},
       {"Vorkasse", "moneyorder", false, false, false, false, 0.0, "1200", true, false},
       {"EU-Standardüberweisung", "eustandardtransfer", false, false, false, false, 0.0, "1200", true, false},
       {"Lastschrift", "banktransfer", false, true, false, false, 0.0, "1200", true, false},
       {"Nachnahme", "cod", false, false, true, false, 4.0, "1360", true, false},
       {"Kreditkarte", "cc", true, false, false, true, 0.0, "1361", true, false},
       {"PayPal", "paypal", true, false, false, true, 0.0, "1362", true, false},
       {"PayPal Express", "paypalexpress", true, false, false, true, 0.0, "1362", true, false},
       {"Barzahlung", "cash", true, false, false, false, 0.0, "1000", true, false},
       {"Gutschein", "no_payment", false, false, false, false, 0.0, "1200", true, false}});
}

Stammtabelle Zahlungsbedingungen() {
  return Tabelle_bilden("PaymentPractices",
                        "Description PaymentPeriod DiscountPeriod Discount Active Standard",
                        {{"Zahlbar sofort ohne Abzug", 0, 0, 0.0, true, true},
                         {"14 Tage netto", 14, 0, 0.0, true, false},
                         {"30 Tage netto", 30, 0, 0.0, true, false},
                         {"8 Tage 2 % Skonto, 14 Tage netto", 14, 8, 2.0, true, false},
                         {"10 Tage 3 % Skonto, 30 Tage netto", 30, 10, 3.0, true, false}});
}

/// Zones joined by "|": countries ~ steps "up to kg:net costs" ~ tax key. Countries in no zone pay the last
/// one's costs. A step of 998 kg keeps a heavy order from finding no price; 999 could not be found.
const char *const Paketstaffel =
    "DE~5:4,12;10:5,80;20:9,16;31,5:13,36;998:41,18~1"
    "|AT;BE;DK;FR;LU;NL;PL;CZ~5:8,32;10:12,52;20:16,72;31,5:20,92;998:83,19~1"
    "|BG;EE;ES;FI;GR;HR;HU;IE;IT;LT;LV;MT;CY;PT;RO;SE;SI;SK~5:12,52;10:16,72;20:25,13;31,5:33,53;998:125,21~1"
    "|CH;LI;NO;GB~5:15,04;10:20,92;20:33,53;31,5:41,93;998:151,26~1"
    "|US;CA~5:29,33;10:46,13;20:75,55;31,5:104,96;998:419,33~1";
const char *const Gewichtsstaffel =
    "DE~1:3,28;5:4,96;10:6,64;31,5:10,84;998:41,18~1"
    "|AT;CH;LI~1:6,64;5:10,84;10:15,04;31,5:23,45;998:83,19~1";

Stammtabelle Versandarten() {
  return Tabelle_bilden(
      "ForwardingCharges",
      "Description Token Costs VatCode Weight PriceScaleEnable PriceScale Active Standard",
      {{"Pauschaler Versand", "flat_flat", 5.80, "1", 31.5, false, "", true, true},
       {"Deutsche Post", "dp_dp", 4.12, "1", 31.5, true, Paketstaffel, true, false},
       {"Versand nach Gewicht", "table_table", 4.96, "1", 31.5, true, Gewichtsstaffel, true, false},
       {"UPS", "ups_ups", 8.32, "1", 70.0, false, "", true, false},
       {"DHL", "dhl_dhl", 4.96, "1", 31.5, false, "", true, false},
       {"Versand je Stück", "item_item", 4.12, "1", 31.5, false, "", true, false},
       {"Versandkostenfrei", "freeamount_freeamount", 0.0, "1", 31.5, false, "", true, false},
       {"Selbstabholung", "selfpickup_selfpickup", 0.0, "1", 0.0, false, "", true, false},
       {"Spedition", "spedition", 41.18, "1", 998.0, false, "", true, false}});
}

}  // namespace

void Zahlung_und_Versand_ergaenzen(std::vector<Stammtabelle> &Tabellen) {
  Tabellen.push_back(Zahlungsarten());
  Tabellen.push_back(Zahlungsbedingungen());
  Tabellen.push_back(Versandarten());
}

}  // namespace marklink::app
