// What an invoice books by the client's settings: payment, open item, direct debit, accounting records. A
// component of the host that is missing or fails is passed over.
#pragma once

#include <optional>

#include "Belegvorgang.h"
#include "rules/Zahlungsverkehr.h"

namespace marklink {

/// Nothing when no payment was booked.
std::optional<Zahlungseingang> Zahlung_buchen(const Belegvorgang &Rechnung);
/// For every invoice; `Zahlung` tells of a cash discount.
void Offenen_Posten_anlegen(const Belegvorgang &Rechnung, const std::optional<Zahlungseingang> &Zahlung);
void Lastschrift_buchen(const Belegvorgang &Rechnung);
void Buchungssaetze_erzeugen(const Belegvorgang &Rechnung);

}  // namespace marklink
