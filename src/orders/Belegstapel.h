// Documents for all marked orders at once.
#pragma once

#include <functional>

#include "Auftragsliste.h"
#include "Belegerzeugung.h"
#include "Kundenuebernahme.h"

namespace marklink {

/// Values of `Art` of Belege_erzeugen(); any other makes nothing but the customers.
enum Stapelart { Stapel_Auftraege = 0, Stapel_Rechnungen = 1 };

/// Hears of a row when it is done: what became of its customer and its document.
using Belegmeldung = std::function<void(int Zeile, const Kundenuebernahme &, const Belegergebnis &)>;

/// The run behind "Auftrag" and "Rechnung": refreshes the customer of every marked row and makes its
/// document, in list order, with progress; then the list is loaded again. Without a mark the stated box.
/// `Ergebnis` hears of each row when it is done.
void Belege_erzeugen(int Art, Auftragsliste &Liste, const Belegmeldung &Ergebnis = {});

/// The rebate of an order as a number, per cent: the shop's text has a point ("2.50"), what a user typed has
/// a comma. A value of exactly 1 stands for none and gives 0, on purpose.
double Belegrabatt_lesen(const QString &Rebate);

}  // namespace marklink
