// What sets contracts and invoices apart, in one table.
#pragma once

#include <QString>

namespace marklink {

struct Belegart {
  QString Wort;            ///< as in Positions.document
  QString Tabelle;         ///< of the head
  QString Schluesselfeld;  ///< the document number in it
  QString Nummernkreis;
  QString Nummernfrage;            ///< text of the prompt for a number
  int Lagerbuchung = 0;            ///< the value of Kontext.gStorageBooking with which it books stock
  bool Buchen_ohne_Lager = false;  ///< reservations are booked out even where it books no stock
  QString Fehler;                  ///< the report of a failed step

  /// Whether a document of this kind books stock at this client.
  bool Bucht_Lager() const;
};

const Belegart &Belegart_Auftrag();
const Belegart &Belegart_Rechnung();

}  // namespace marklink
