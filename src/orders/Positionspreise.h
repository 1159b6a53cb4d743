// The unit prices and totals of a position.
#pragma once

#include <QString>

namespace marklink {

struct Preisanfrage {
  int Taxation = 0;  ///< 0: net document, 1: gross document; any other leaves the totals at 0
  QString Kundennummer;
  int Preisherkunft = 0;  ///< 0 prices of the books, 1 of the order's line; any other: all prices are 0
  QString Artikelnummer;
  QString Steuerschluessel;  ///< of the position
  double Einzelpreis = 0;    ///< of the order's line: net, one piece
  double Rabatt = 0;         ///< per cent
  double Menge = 0;
};

struct Positionspreise {
  bool Gefunden = true;                      ///< false: the books gave no price for the article
  double Netto = 0, Steuer = 0, Brutto = 0;  ///< one piece, before the discount
  double Netto_rabattiert = 0, Brutto_rabattiert = 0;
  double Gesamt_Netto = 0, Gesamt_Steuer = 0, Gesamt_Brutto = 0;
};

/// Prices of the books carry the article's own tax key, the totals that of the position: for a foreign
/// customer the two differ, which is intended. The shop's price is net; its tax and gross follow the
/// position's tax key. The leading total (gross or net, by `Taxation`) is the rounded unit price times the
/// quantity and not rounded itself; the other one is computed from it.
Positionspreise Positionspreise_ermitteln(const Preisanfrage &Anfrage);

}  // namespace marklink
