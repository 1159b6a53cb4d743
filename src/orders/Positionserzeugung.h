// The lines of a staged order as positions of a document.
#pragma once

#include <QString>

namespace marklink {

struct Positionsvorgabe {
  QString Bestellnummer;
  QString Beleg, Belegnummer;  ///< document word as in Positions.document, and number
  bool Lager_pruefen = false;  ///< the document books stock: lines are checked for shortage and allocated
  int Taxation = 0;            ///< 0: net document, 1: gross document
  int TaxCalculation = 0;      ///< of the customer, see Steuerfeld_Kunde()
  QString Kundennummer;        ///< whose prices count
  int Preisherkunft = 0;       ///< Kontext.gArticlepricing: 0 prices of the books, 1 of the order's lines
};

/// Adds a position for each line of the order and saves them as one batch. Line numbers follow the line's
/// place in the order, so a line that is left out leaves a gap. `Rabatt` holds the discount of the last
/// position afterwards. The user is asked about articles that are missing and about shortages. False when
/// something of it could not be read or saved; what could be is saved all the same.
bool Positionen_erzeugen(const Positionsvorgabe &Vorgabe, double &Rabatt);

}  // namespace marklink
