// The least that making invoices can cost: the same look-ups, rows and counters by hand.
#pragma once

#include <string>

namespace marklink::messung {

/// Makes an invoice of each of that many staged orders, one transaction a step as the product has them. Gives
/// how many were made, -1 when something failed. `Typ` 0 counts in the settings file, 1 in the table Options.
int Untergrenze_abrechnen(const std::string &Ordner, int Typ, int Bestellungen);

}  // namespace marklink::messung
