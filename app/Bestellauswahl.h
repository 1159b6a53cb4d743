// The orders that a command works on: named ones, or all with --alle.
#pragma once

#include <functional>
#include <optional>

#include "Befehlszeile.h"
#include "orders/Auftragsliste.h"

namespace marklink {

/// Whether the command got either --alle or numbers; if not, that is told on standard error.
bool Bestellauswahl_gueltig(const Aufruf &A);

struct Bestellauswahl {
  int Markiert = 0;
  bool Alle_bekannt = true;  ///< false: an order is not staged, or nobody knows whether it is done; told
};

/// Loads every staged order, whatever period was chosen last, and marks the chosen ones and no other.
/// `Fertig` tells which orders --alle leaves out, unless --erneut was given; nothing: it cannot
/// tell, and the order is left out. Named ones are always marked.
Bestellauswahl Bestellungen_markieren(
    const Aufruf &A, Auftragsliste &Liste,
    const std::function<std::optional<bool>(const QString &Bestellnummer)> &Fertig = {});

/// Loads every staged order, whatever period was chosen last.
void Alle_Bestellungen_laden(Auftragsliste &Liste);
/// The order's row; -1 when it is not in the list.
int Bestellung_suchen(const Auftragsliste &Liste, const QString &Nummer);
void Unbekannte_Bestellung_melden(const QString &Nummer);

}  // namespace marklink
