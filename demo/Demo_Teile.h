// The makers of the three parts of the demo data; only Demodaten.cpp calls them.
#pragma once

#include "Demo_Zufall.h"
#include "Demodaten.h"

namespace marklink::demo {

void Artikel_erzeugen(Demodaten &D, Zufall &Z);
void Kunden_erzeugen(Demodaten &D, Zufall &Z);
void Bestellungen_erzeugen(Demodaten &D, Zufall &Z);

/// The rows ot_... of an order whose positions stand already. `Versand` and `Nachnahme` are gross euro cents.
struct Summenangaben {
  int Gruppe;
  bool Steuerfrei;
  Cent Versand = 0, Nachnahme = 0;
  Cent Kupon = 0;  ///< order's currency, gross
  QString Kuponcode;
  bool Guthaben = false;  ///< a gift voucher pays everything
};
void Summen_bilden(Bestellung &B, const Summenangaben &A);
/// "1.234,50 EUR"
QString Betrag_schreiben(Cent Wert, const QString &Waehrung);

}  // namespace marklink::demo
