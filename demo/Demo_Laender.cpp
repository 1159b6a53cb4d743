// Fixed lists of the demo shop: countries and states with the numbers of the shop's own seed, customer
// groups, order statuses.
#include "Demodaten.h"

namespace marklink::demo {

const std::vector<Land> &Laender() {
  static const std::vector<Land> Liste{
      {14, "Austria", "AT", "AUT", 5, true},         {21, "Belgium", "BE", "BEL", 1, true},
      {56, "Czech Republic", "CZ", "CZE", 1, true},  {57, "Denmark", "DK", "DNK", 1, true},
      {72, "Finland", "FI", "FIN", 1, true},         {73, "France", "FR", "FRA", 1, true},
      {81, "Germany", "DE", "DEU", 5, true},         {103, "Ireland", "IE", "IRL", 1, true},
      {105, "Italy", "IT", "ITA", 1, true},          {122, "Liechtenstein", "LI", "LIE", 1, false},
      {124, "Luxembourg", "LU", "LUX", 1, true},     {150, "Netherlands", "NL", "NLD", 1, true},
      {160, "Norway", "NO", "NOR", 1, false},        {170, "Poland", "PL", "POL", 1, true},
      {195, "Spain", "ES", "ESP", 3, true},          {203, "Sweden", "SE", "SWE", 1, true},
      {204, "Switzerland", "CH", "CHE", 5, false},   {222, "United Kingdom", "GB", "GBR", 1, false},
      {223, "United States", "US", "USA", 2, false},
  };
  return Liste;
}

const Land &Land_mit_Id(int Id) {
  for (const Land &L : Laender())
    if (L.Id == Id) return L;
  return Laender().front();
}

const std::vector<Bundesland> &Bundeslaender() {
  static const std::vector<Bundesland> Liste{
      {43, 223, "OR", "Oregon"},
      {59, 223, "VT", "Vermont"},
      {64, 223, "WI", "Wisconsin"},
      {79, 81, "NDS", "Niedersachsen"},
      {80, 81, "BAW", "Baden-Württemberg"},
      {81, 81, "BAY", "Bayern"},
      {82, 81, "BER", "Berlin"},
      {83, 81, "BRG", "Brandenburg"},
      {84, 81, "BRE", "Bremen"},
      {85, 81, "HAM", "Hamburg"},
      {86, 81, "HES", "Hessen"},
      {87, 81, "MEC", "Mecklenburg-Vorpommern"},
      {88, 81, "NRW", "Nordrhein-Westfalen"},
      {89, 81, "RHE", "Rheinland-Pfalz"},
      {90, 81, "SAR", "Saarland"},
      {91, 81, "SAS", "Sachsen"},
      {92, 81, "SAC", "Sachsen-Anhalt"},
      {93, 81, "SCN", "Schleswig-Holstein"},
      {94, 81, "THE", "Thüringen"},
      {95, 14, "WI", "Wien"},
      {98, 14, "SB", "Salzburg"},
      {97, 14, "OO", "Oberösterreich"},
      {99, 14, "KN", "Kärnten"},
      {100, 14, "ST", "Steiermark"},
      {101, 14, "TI", "Tirol"},
      {103, 14, "VB", "Vorarlberg"},
      {107, 204, "BE", "Bern"},
      {109, 204, "BS", "Basel-Stadt"},
      {113, 204, "GR", "Graubünden"},
      {115, 204, "LU", "Luzern"},
      {119, 204, "SG", "St. Gallen"},
      {129, 204, "ZH", "Zürich"},
  };
  return Liste;
}

const Kundengruppe &Gruppendaten(int Gruppe) {
  static const std::vector<Kundengruppe> Liste{
      {QStringLiteral("Admin"), QStringLiteral("Admin"), true, false, 0, 0, true},
      {QStringLiteral("Gast"), QStringLiteral("Guest"), true, false, 0, 0, false},
      {QStringLiteral("Neuer Kunde"), QStringLiteral("New customer"), true, false, 0, 0, false},
      {QStringLiteral("Händler"), QStringLiteral("Merchant"), false, true, 5, 0, true},
      {QStringLiteral("Händler EU"), QStringLiteral("Merchant EU"), false, false, 5, 0, true},
      {QStringLiteral("Stammkunde"), QStringLiteral("Regular customer"), true, false, 0, 3, false},
  };
  return Liste[static_cast<std::size_t>(Gruppe)];
}

const std::vector<Bestellstatus> &Bestellstati() {
  static const std::vector<Bestellstatus> Liste{
      {1, QStringLiteral("Offen"), QStringLiteral("Pending")},
      {2, QStringLiteral("In Bearbeitung"), QStringLiteral("Processing")},
      {3, QStringLiteral("Versendet"), QStringLiteral("Delivered")},
      {4, QStringLiteral("Zahlung eingegangen"), QStringLiteral("Payment received")},
      {5, QStringLiteral("Storniert"), QStringLiteral("Cancelled")},
  };
  return Liste;
}

}  // namespace marklink::demo
