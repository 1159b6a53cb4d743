// The order status list: which statuses the shop has, and the colour in which the grids show their rows.
#pragma once

#include <QString>
#include <vector>

namespace marklink {

/// The status list text: records WebshopID;Description;Colour joined by "|", as it was last built.
extern QString gAuftragsstati_Liste;

/// A row of WebshopOrderStatusXTC as texts; null fields are empty.
struct Auftragsstatus {
  QString WebshopID, Description, Colour;
};
/// Reads WebshopOrderStatusXTC in the order of WebshopID and builds gAuftragsstati_Liste from it.
std::vector<Auftragsstatus> Auftragsstatusliste_aufbauen();

/// The row colour that goes with a status id.
struct Auftragsstatusfarbe {
  QString WebshopID;
  qint32 Colour = 0;  ///< colour value
};
/// The colours of a status list text; a record without a colour value has none and is left out. A description
/// that holds ";" or "|" breaks its record, on purpose.
std::vector<Auftragsstatusfarbe> Auftragsstati_farben(const QString &Liste);

}  // namespace marklink
