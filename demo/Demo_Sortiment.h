// The assortment as a table: what the trading company sells, in categories.
#pragma once

#include <vector>

namespace marklink::demo {

struct Sortimentszeile {
  int Kategorie;
  const char16_t *Name, *Englisch;
  int Brutto;  ///< cents, tax included
  int Gewicht_g;
  int Bestand;
  const char16_t *Einheit;
  const char *Optionen;  ///< one letter an option, see Demo_Artikel.cpp
};

struct Kategoriezeile {
  int Id, Oberkategorie;
  const char16_t *Name, *Englisch;
  const char *Kuerzel;  ///< starts the article numbers; empty for a category without articles
  int Steuersatz;
};

const std::vector<Kategoriezeile> &Kategorietafel();
const std::vector<Sortimentszeile> &Sortiment();

}  // namespace marklink::demo
