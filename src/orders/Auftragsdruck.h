// The printed lists of marked orders: which orders, over which period, and where the list goes.
#pragma once

#include <optional>

#include "Auftragsliste.h"
#include "reports/Listenbericht.h"

namespace marklink {

/// The numbers of the marked orders. With none, and `Meldung_zeigen`, that is told in a box.
QStringList Auswahl_lesen(const Auftragsliste &Liste, bool Meldung_zeigen);

/// The statement of a list: the orders of these numbers in the period, in the list's order.
db::Anweisung Listenanweisung(Listenbericht::Art Was, const QStringList &Bestellnummern);

/// The list of the marked orders under the period filter (Kontext.gViewablePeriod), its rows read. Nothing,
/// and told in a box, when no order is marked.
std::optional<Report> Liste_erstellen(Listenbericht::Art Was, const Auftragsliste &Liste);

/// The order desk's commands: the preview of a list, and the transaction list to a file.
void Bestellliste_drucken(const Auftragsliste &Liste);
void Transaktionsliste_drucken(const Auftragsliste &Liste);
void Transaktionsliste_exportieren(const Auftragsliste &Liste);

}  // namespace marklink
