// Lists that exist on both sides, as a freshly installed shop holds them; `WebshopID` is the shop's id.
#include "Teile.h"

namespace marklink::app {

namespace {

/// A colour as the books keep it: red in the lowest byte.
constexpr int Farbe(int Rot, int Gruen, int Blau) { return Rot + Gruen * 256 + Blau * 65536; }

Stammtabelle Auftragsstati() {
  return Tabelle_bilden("WebshopOrderStatusXTC", "Description Colour WebshopID Active Standard",
                        {{"Offen", Farbe(255, 245, 200), "1", true, true},
                         {"In Bearbeitung", Farbe(205, 228, 250), "2", true, false},
                         {"Versendet", Farbe(208, 240, 208), "3", true, false},
                         {"Zahlung eingegangen", Farbe(225, 215, 245), "4", true, false},
                         {"Storniert", Farbe(224, 224, 224), "5", true, false}});
}

Stammtabelle Lieferzeiten() {
  return Tabelle_bilden("WebshopDeliveryTimesXTC",
                        "Description DeliveryTimeDays StockQuantity WebshopID Active Standard",
                        {{"3-4 Tage", 4, 10.0, "1", true, true},
                         {"1 Woche", 7, 5.0, "2", true, false},
                         {"2 Wochen", 14, 0.0, "3", true, false}});
}

Stammtabelle Sprachen() {
  return Tabelle_bilden(
      "WebshopLanguagesXTC",
      "Description Token Image Directory SortOrder LanguageCharset WebshopID Active Standard",
      {{"English", "en", "icon.gif", "english", 2, "iso-8859-15", "1", true, false},
       {"Deutsch", "de", "icon.gif", "german", 1, "iso-8859-15", "2", true, true}});
}

Stammtabelle Kundengruppen() {
  return Tabelle_bilden("CustomerTypes",
                        "Description BlockingPricing SpecialOfferPrice Taxable WebshopID Active Standard",
                        {{"Admin", true, true, true, "0", true, false},
                         {"Gast", false, true, true, "1", true, false},
                         {"Neuer Kunde", false, true, true, "2", true, true},
                         {"Händler", true, true, true, "3", true, false},
                         {"Händler EU", true, true, false, "4", true, false},
                         {"Stammkunde", false, true, true, "5", true, false}});
}

/// Ids without gaps: the web record picks a unit by its place in the list.
Stammtabelle Einheiten() {
  return Tabelle_bilden("Units", "Description WebshopID Active Standard",
                        {{"Stück", "1", true, true},
                         {"Paar", "2", true, false},
                         {"Set", "3", true, false},
                         {"Packung", "4", true, false},
                         {"Meter", "5", true, false},
                         {"Liter", "6", true, false},
                         {"Kilogramm", "7", true, false},
                         {"100 ml", "8", true, false},
                         {"100 g", "9", true, false}});
}

Stammtabelle Vorlagen_Details() {
  return Tabelle_bilden("WebshopArticleTemplatesDetailsXTC", "Description Active Standard",
                        {{"default", true, true}, {"product_info_v1.html", true, false}});
}

Stammtabelle Vorlagen_Optionen() {
  return Tabelle_bilden("WebshopArticleTemplatesOptionsXTC", "Description Active Standard",
                        {{"default", true, true},
                         {"product_options_dropdown.html", true, false},
                         {"product_options_selection.html", true, false}});
}

}  // namespace

void Shoplisten_ergaenzen(std::vector<Stammtabelle> &Tabellen) {
  for (auto liste :
       {Auftragsstati, Lieferzeiten, Sprachen, Kundengruppen, Einheiten, Vorlagen_Details, Vorlagen_Optionen})
    Tabellen.push_back(liste());
}

}  // namespace marklink::app
