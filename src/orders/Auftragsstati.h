// The order statuses of the shop as the order desk shows them.
#pragma once

#include <QString>
#include <vector>

#include "ui/Pruefliste.h"

namespace marklink {

/// The status list text: records WebshopID;Description;Colour joined by "|", of the last initialisation.
extern QString gAuftragsstati_Liste;

/// Reads WebshopOrderStatusXTC in the order of WebshopID, fills `lvwAuftragsstatus` with a row for each
/// (text, WebshopID, Description; none checked) and gives the status list text.
QString Auftragsstati_initialisieren(Pruefliste &lvwAuftragsstatus);

/// The row colour that goes with a status id.
struct Auftragsstatusfarbe {
  QString WebshopID;
  qint32 Colour = 0;  ///< the stored colour value; 0 when it is none
};
/// The records of a status list text. A description that holds ";" or "|" breaks its record, on purpose.
std::vector<Auftragsstatusfarbe> Auftragsstati_farben(const QString &Liste);

}  // namespace marklink
