// Puts the reference data together; holds the short lists of the host itself.
#include "Stammdaten.h"

#include "Teile.h"

namespace marklink::app {

Stammtabelle Tabelle_bilden(const char *Tabelle, const char *Spalten, std::initializer_list<Zeile> Zeilen) {
  Stammtabelle tabelle{QString::fromUtf8(Tabelle), QString::fromUtf8(Spalten).split(u' '), {}};
  for (const Zeile &zeile : Zeilen) {
    QVariantList werte;
    for (const Angabe &angabe : zeile) werte.append(angabe.Wert());
    tabelle.Zeilen.push_back(werte);
  }
  return tabelle;
}

namespace {

Stammtabelle Mitarbeiter(const QString &Benutzer) {
  // A password is stored 31 code points below the clear text; this one reads "geheim".
  return Tabelle_bilden("Employees", "Description Store StorageNumber MailAccount Password",
                        {{Benutzer, "Zentrale", "01", "chef@example.com", "HFIFJN"}});
}

/// Key 1 is the full rate, which document discounts name. Foreign customers with a VAT id and customers
/// outside the EU get the two keys of their own, so that the accounts can tell them apart from exempt goods
/// at home.
Stammtabelle Steuern() {
  return Tabelle_bilden("Taxes",
                        "TaxKeyNumber Percentage TaxRateEUVatID TaxRateEUNonVatID TaxRateNonEU WebshopID",
                        {{"1", 19.0, "4", "1", "5", "1"},
                         {"2", 7.0, "4", "2", "5", "2"},
                         {"3", 0.0, "4", "3", "5", ""},
                         {"4", 0.0, "4", "4", "5", ""},
                         {"5", 0.0, "4", "5", "5", ""}});
}

Stammtabelle Artikelarten() {
  return Tabelle_bilden("ArticleTypes", "Description Stock Variant Standard",
                        {{"Ware", true, false, true},
                         {"Variantenartikel", true, true, false},
                         {"Stückliste", true, false, false},
                         {"Dienstleistung", false, false, false},
                         {"Download", false, false, false}});
}

Stammtabelle Formulare() {
  return Tabelle_bilden("Forms", "Description Type Standard",
                        {{"Auftragsbestätigung", "Auftrag", true},
                         {"Lieferschein", "Lieferschein", true},
                         {"Rechnung", "Rechnung", true},
                         {"Rechnung (englisch)", "Rechnung", false},
                         {"Quittung", "Quittung", true},
                         {"Gutschrift", "Gutschrift", true},
                         {"Transportauftrag", "Transportauftrag", true},
                         {"Retoure", "Retoure", true}});
}

Stammtabelle Mitteilungsarten() {
  return Tabelle_bilden("Impartations", "Description Standard",
                        {{"E-Mail", true}, {"Post", false}, {"Fax", false}, {"Abholung", false}});
}

}  // namespace

std::vector<Stammtabelle> Stammdaten(const QString &Benutzer) {
  std::vector<Stammtabelle> tabellen{Mitarbeiter(Benutzer), Laenderliste(), Steuern(),
                                     Artikelarten(),        Formulare(),    Mitteilungsarten()};
  Zahlung_und_Versand_ergaenzen(tabellen);
  Shoplisten_ergaenzen(tabellen);
  return tabellen;
}

}  // namespace marklink::app
